unit Child;
interface
uses Base, Forms, Classes;
type
  TChildForm = class(TBaseForm)
    procedure Go;
  end;
var
  ChildForm: TChildForm;
implementation
{$R *.dfm}
procedure TChildForm.Go;
begin
  Caption := 'Child text';
end;
end.
