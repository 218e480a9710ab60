program Shop;

uses
  Forms,
  Main in 'Main.pas' {MainForm},
  Data in 'Data.pas' {DataForm};

begin
  Application.Initialize;
  Application.CreateForm(TMainForm, MainForm);
  Application.Run;
end.
