unit Controls;
interface
uses Classes;
type
  TModalResult = Integer;
  TControl = class(TComponent)
  private
    FText: string;
  public
    procedure SetFocus;
    property Caption: string read FText write FText;
    property Text: string read FText write FText;
  end;
const
  mrNone = 0;
  mrOk = 1;
  mrYes = 6;
implementation
procedure TControl.SetFocus;
begin
end;
end.
