unit StdCtrls;
interface
uses Classes, Controls;
type
  TButton = class(TControl);
  TLabel = class(TControl);
  TEdit = class(TControl);
  TComboBox = class(TControl);
  TListBox = class(TControl)
  private
    FItems: TStrings;
    FItemIndex: Integer;
  public
    property Items: TStrings read FItems;
    property ItemIndex: Integer read FItemIndex write FItemIndex;
  end;
  TMemo = class(TControl)
  private
    FLines: TStrings;
  public
    property Lines: TStrings read FLines;
  end;
implementation
end.
