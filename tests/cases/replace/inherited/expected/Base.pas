unit Base;
interface
uses Forms, Classes, Glotta;
type
  TBaseForm = class(TForm)
    Glotta2: TGlotta;
    procedure Go;
  end;
var
  BaseForm: TBaseForm;
implementation
{$R *.dfm}
procedure TBaseForm.Go;
begin
  Caption := Glotta2.GetTextOrDefault('IDS_0' (* 'Base text' *) );
end;
end.
