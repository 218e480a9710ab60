program OrderDesk;

uses
  Forms,
  Main in 'Main.pas' {MainForm},
  DataMod in 'DataMod.pas' {Data: TDataModule},
  CustomerEdit in 'CustomerEdit.pas' {CustomerForm},
  Receipt in 'Receipt.pas' {ReceiptForm},
  About in 'About.pas' {AboutBox},
{$IFDEF DEBUG}
  Trace in 'Trace.pas',
{$ENDIF}
  Totals in 'Units\Totals.pas';

{$R *.RES}

begin
  Application.Initialize;
  Application.Title := 'Order Desk';
  Application.CreateForm(TMainForm, MainForm);
  Application.CreateForm(TData, Data);
  Application.CreateForm(TCustomerForm, CustomerForm);
  Application.CreateForm(TReceiptForm, ReceiptForm);
  Application.CreateForm(TAboutBox, AboutBox);
  Application.Run;
end.
