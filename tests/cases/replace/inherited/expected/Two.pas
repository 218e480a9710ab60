unit Two;
interface
uses Glotta, Forms, Classes;
type
  TTwoForm = class(TForm)
    First: TGlotta;
    Second: TGlotta;
    procedure Go;
  end;
var
  TwoForm: TTwoForm;
implementation
{$R *.dfm}
procedure TTwoForm.Go;
begin
  Caption := First.GetTextOrDefault('IDS_0' (* 'Two text' *) );
end;
end.
