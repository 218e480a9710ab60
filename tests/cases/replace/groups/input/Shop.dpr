program Shop;
uses
  Forms,
  Shown in 'shown.PAS' {ShownForm},
  Broken in 'Broken.pas' {BrokenForm},
  Missing in 'Missing.pas' {MissingForm},
  Tools in 'Lib\Tools.pas';
{$R *.res}
begin
  Application.Run;
end.
