unit Messages;
interface
implementation
end.
