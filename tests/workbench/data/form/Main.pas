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
  Caption := Glotta1.GetTextOrDefault('IDS_10' (* 'Order Desk ' *) ) + AppVersion;
  FModified := False;
  StatusBar.SimpleText := Glotta1.GetTextOrDefault('IDS_READY' (* 'Ready' *) );
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
    osPaid: StatusBar.SimpleText := Glotta1.GetTextOrDefault('IDS_13' (* 'Paid, waiting for delivery' *) );
    osSent: StatusBar.SimpleText := 'Sent'; {TGL:IGNORE}
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
      raise Exception.Create(Glotta1.GetTextOrDefault('IDS_16' (* 'The file "' *) ) + FileName + Glotta1.GetTextOrDefault('IDS_17' (* '" isn't an order file.' *) ));
    OrderList.Items.Assign(Lines);
    FFileName := FileName;
    if Mode = 'quiet' then {TGL:IGNORE}
      Exit;
    ShowMessage(Format(Glotta1.GetTextOrDefault('IDS_18' (* '%d orders were read.' *) ), [Lines.Count - 1]) + #13#10 +
      Glotta1.GetTextOrDefault('IDS_19' (* 'Have a nice day!' *) ));
  finally
    Lines.Free;
  end;
end;

function TMainForm.OrderText(Number: Integer; Amount: Currency): string;
begin
  Result := Glotta1.GetTextOrDefault('IDS_20' (* 'Order no. ' *) ) + IntToStr(Number) + ': ' + CurrToStr(Amount);
{TGL:IGNORE ON}
  if Result = 'debug' then
    Result := 'DEBUG ORDER';
{TGL:IGNORE OFF}
  if Amount < 0 then
    Result := Result + Glotta1.GetTextOrDefault('IDS_21' (* ' (credit note)' *) );
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
  OpenDialog1.Title := Glotta1.GetTextOrDefault('IDS_22' (* 'Open an order file' *) );
  OpenDialog1.Filter := Glotta1.GetTextOrDefault('IDS_23' (* 'Order files (*.ord)|*.ord|All files (*.* )|*.*' *) );
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
  else if MessageDlg(Glotta1.GetTextOrDefault('IDS_24' (* 'Delete this order?' *) ), mtWarning, [mbYes, mbNo], 0) = mrYes then
  begin
    OrderList.Items.Delete(OrderList.ItemIndex);
    StatusBar.SimpleText := Glotta1.GetTextOrDefault('IDS_11' (* 'Ready' *) ); // 'Ready' is shown again
  end;
end;

end.
