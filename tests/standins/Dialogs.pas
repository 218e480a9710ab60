unit Dialogs;
interface
uses Classes;
type
  TMsgDlgType = (mtWarning, mtError, mtInformation, mtConfirmation);
  TMsgDlgBtn = (mbYes, mbNo, mbOK, mbCancel);
  TMsgDlgButtons = set of TMsgDlgBtn;
  TOpenDialog = class(TComponent)
  private
    FTitle, FFilter, FFileName: string;
  public
    function Execute: Boolean;
    property Title: string read FTitle write FTitle;
    property Filter: string read FFilter write FFilter;
    property FileName: string read FFileName write FFileName;
  end;
procedure ShowMessage(const Text: string);
function MessageDlg(const Text: string; Kind: TMsgDlgType; Buttons: TMsgDlgButtons; Help: Integer): Integer;
implementation
procedure ShowMessage(const Text: string);
begin
end;
function MessageDlg(const Text: string; Kind: TMsgDlgType; Buttons: TMsgDlgButtons; Help: Integer): Integer;
begin
  Result := 0;
end;
function TOpenDialog.Execute: Boolean;
begin
  Result := False;
end;
end.
