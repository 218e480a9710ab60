unit Shown;
interface
uses Forms, Classes;
type
  TShownForm = class(TForm)
    procedure Go;
  end;
var
  ShownForm: TShownForm;
implementation
{$R *.dfm}
procedure TShownForm.Go;
begin
  Caption := 'Shown text'; 
end;
end.
