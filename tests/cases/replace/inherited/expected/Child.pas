unit Child;
interface
uses Base, Forms, Classes, Glotta;
type
  TChildForm = class(TBaseForm)
    Glotta1: TGlotta;
    procedure Go;
  end;
var
  ChildForm: TChildForm;
implementation
{$R *.dfm}
procedure TChildForm.Go;
begin
  Caption := Glotta1.GetTextOrDefault('IDS_0' (* 'Child text' *) );
end;
end.
