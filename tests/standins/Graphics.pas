unit Graphics;
interface
implementation
end.
