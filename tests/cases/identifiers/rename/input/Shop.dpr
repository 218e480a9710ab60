program Shop;
uses
  Forms,
  Main in 'Main.pas' {MainForm},
  Data in 'Data.pas' {DataForm},
  Bare in 'Bare.pas' {BareForm},
  Tools in 'Tools.pas';
begin
  Application.Title := MainForm.Glotta1.GetText('TITLE');
end.
