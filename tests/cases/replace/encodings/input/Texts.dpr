program Texts;
uses
  Forms,
  Czech in 'Czech.pas' {CzechForm},
  Bom in 'Bom.pas' {BomForm},
  Wide in 'Wide.pas' {WideForm},
  Mixed in 'Mixed.pas' {MixedForm};
{$R *.res}
begin
  Application.Run;
end.
