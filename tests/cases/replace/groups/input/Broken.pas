unit Broken;
interface
uses Forms, Classes;
type
  TBrokenForm = class(TForm)
    procedure Go;
  end;
var
  BrokenForm: TBrokenForm;
implementation
{$R *.dfm}
procedure TBrokenForm.Go;
begin
  Caption := 'Broken text'; // Broken text
end;
end.
