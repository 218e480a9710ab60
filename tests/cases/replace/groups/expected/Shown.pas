unit Shown;
interface
uses Forms, Classes, Glotta;
type
  TShownForm = class(TForm)
    Glotta1: TGlotta;
    procedure Go;
  end;
var
  ShownForm: TShownForm;
implementation
{$R *.dfm}
procedure TShownForm.Go;
begin
  Caption := Glotta1.GetTextOrDefault('IDS_0' (* 'Shown text' *) ); 
end;
end.
