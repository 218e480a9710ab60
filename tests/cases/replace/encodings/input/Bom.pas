unit Bom;
interface
uses Forms, Classes;
type
  TBomForm = class(TForm)
    procedure Go;
  end;
var
  BomForm: TBomForm;
implementation
{$R *.dfm}
procedure TBomForm.Go;
begin
  Caption := 'Ελλάδα и Россия €'; // Ελλάδα и Россия €
end;
end.
