unit Main;

{ Main window of the order desk.  Orders live in the data module;
  don't put any database code here. }

interface

uses
  Windows, Messages, SysUtils, Classes, Graphics, Controls, Forms, Dialogs,
  StdCtrls, ExtCtrls, ComCtrls, Menus, Glotta;

const
  WM_REFRESH = $0400 + 1;
  AppVersion = '2.1';
  NoOrder = 'No order selected';
  SaveQuestion = 'The order was changed.'#13#10'Save the changes?';
  Months: array[1..4] of string = ('January', 'February',
    'March', 'April');

type
  TOrderState = (osNew, osPaid, osSent);

  TMainForm = class(TForm)
    MainMenu1: TMainMenu;
    File1: TMenuItem;
    New1: TMenuItem;
    Open1: TMenuItem;
    N1: TMenuItem;
    Exit1: TMenuItem;
    Help1: TMenuItem;
    About1: TMenuItem;
    ToolPanel: TPanel;
    btnNew: TButton;
    btnDelete: TButton;
    OrderList: TListBox;
    StatusBar: TStatusBar;
    OpenDialog1: TOpenDialog;
    Glotta1: TGlotta;
    procedure FormCreate(Sender: TObject);
    procedure FormCloseQuery(Sender: TObject; var CanClose: Boolean);
    procedure New1Click(Sender: TObject);
    procedure Open1Click(Sender: TObject);
    procedure Exit1Click(Sender: TObject);
    procedure About1Click(Sender: TObject);
    procedure btnDeleteClick(Sender: TObject);
  private
    FModified: Boolean;
    FFileName: string;
    procedure ShowState(State: TOrderState);
    procedure LoadOrders(const FileName: string; const Mode: string = 'normal');
  public
    function OrderText(Number: Integer; Amount: Currency): string;
  end;

var
  MainForm: TMainForm;
  LastError: string = 'none so far';

implementation

uses About, DataMod, CustomerEdit;

{$R *.DFM}

resourcestring
  SDiskFull = 'The disk is full';

procedure TMainForm.FormCreate(Sender: TObject);
begin
  Caption := 'Order Desk ' + AppVersion;
  FModified := False;
  StatusBar.SimpleText := Glotta1.GetTextOrDefault('IDS_0' (* 'Ready' *) );
end;

procedure TMainForm.FormCloseQuery(Sender: TObject; var CanClose: Boolean);
begin
  CanClose := True;
  if FModified then
    CanClose := MessageDlg(SaveQuestion, mtConfirmation, [mbYes, mbNo], 0) = mrYes;
end;

procedure TMainForm.ShowState(State: TOrderState);
begin
  case State of
    osNew: StatusBar.SimpleText := 'New order';
    osPaid: StatusBar.SimpleText := 'Paid, waiting for delivery';
    osSent: StatusBar.SimpleText := 'Sent';
  end;
end;

procedure TMainForm.LoadOrders(const FileName: string; const Mode: string);
const
  Marker = 'ODF1';
var
  Lines: TStringList;
begin
  Lines := TStringList.Create;
  try
    Lines.LoadFromFile(FileName);
    { an old file hasn't got the marker }
    if (Lines.Count = 0) or (Lines[0] <> Marker) then
      raise Exception.Create('The file "' + FileName + '" isn''t an order file.');
    OrderList.Items.Assign(Lines);
    FFileName := FileName;
    if Mode = 'quiet' then {TGL:IGNORE}
      Exit;
    ShowMessage(Format('%d orders were read.', [Lines.Count - 1]) + #13#10 +
      'Have a nice day!');
  finally
    Lines.Free;
  end;
end;

function TMainForm.OrderText(Number: Integer; Amount: Currency): string;
begin
  Result := 'Order no. ' + IntToStr(Number) + ': ' + CurrToStr(Amount);
{TGL:IGNORE ON}
  if Result = 'debug' then
    Result := 'DEBUG ORDER';
{TGL:IGNORE OFF}
  if Amount < 0 then
    Result := Result + ' (credit note)';
end;

procedure TMainForm.New1Click(Sender: TObject);
begin
  if CustomerForm.ShowModal = mrOk then
  begin
    OrderList.Items.Add(OrderText(OrderList.Items.Count + 1, 0));
    FModified := True;
    ShowState(osNew);
  end;
end;

procedure TMainForm.Open1Click(Sender: TObject);
begin
  OpenDialog1.Title := 'Open an order file';
  OpenDialog1.Filter := 'Order files (*.ord)|*.ord|All files (*.*)|*.*';
  if OpenDialog1.Execute then
    LoadOrders(OpenDialog1.FileName);
end;

procedure TMainForm.Exit1Click(Sender: TObject);
begin
  Close;
end;

procedure TMainForm.About1Click(Sender: TObject);
begin
  AboutBox.ShowModal;
end;

procedure TMainForm.btnDeleteClick(Sender: TObject);
begin
  if OrderList.ItemIndex < 0 then
    ShowMessage(NoOrder)
  else if MessageDlg('Delete this order?', mtWarning, [mbYes, mbNo], 0) = mrYes then
  begin
    OrderList.Items.Delete(OrderList.ItemIndex);
    StatusBar.SimpleText := 'Ready'; // 'Ready' is shown again
  end;
end;

end.
