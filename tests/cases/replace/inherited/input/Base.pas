unit Base;
interface
uses Forms, Classes;
type
  TBaseForm = class(TForm)
    procedure Go;
  end;
var
  BaseForm: TBaseForm;
implementation
{$R *.dfm}
procedure TBaseForm.Go;
begin
  Caption := 'Base text';
end;
end.
