unit Mixed;
interface
uses Forms, Classes;
type
  TMixedForm = class(TForm)
    procedure Go;
  end;
var
  MixedForm: TMixedForm;
implementation
{$R *.dfm}
procedure TMixedForm.Go;
begin
  Caption := 'mixed ends'; // mixed ends
end;
end.