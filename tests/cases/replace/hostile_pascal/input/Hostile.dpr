program Hostile;
uses
  Forms,
  Hard in 'Hard.pas' {HardForm};
{$R *.res}
begin
  Application.Run;
end.
