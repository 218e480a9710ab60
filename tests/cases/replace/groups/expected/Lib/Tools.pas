unit Tools;
interface
procedure Tell;
implementation

uses
  Shown;
procedure Tell;
begin
  Writeln(ShownForm.Glotta1.GetTextOrDefault('IDS_1' (* 'Told' *) ));
end;
end.
