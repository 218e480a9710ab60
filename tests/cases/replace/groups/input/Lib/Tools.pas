unit Tools;
interface
procedure Tell;
implementation
procedure Tell;
begin
  Writeln('Told');
end;
end.
