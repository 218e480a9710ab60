unit ComCtrls;
interface
uses Controls;
type
  TStatusBar = class(TControl)
  private
    FSimpleText: string;
  public
    property SimpleText: string read FSimpleText write FSimpleText;
  end;
implementation
end.
