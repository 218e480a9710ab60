unit Mixed;
interface
uses Forms, Classes, Glotta;
type
  TMixedForm = class(TForm)
    Glotta1: TGlotta;
    procedure Go;
  end;
var
  MixedForm: TMixedForm;
implementation
{$R *.dfm}
procedure TMixedForm.Go;
begin
  Caption := Glotta1.GetTextOrDefault('IDS_0' (* 'mixed ends' *) ); // mixed ends
end;
end.