unit Bom;
interface
uses Forms, Classes, Glotta;
type
  TBomForm = class(TForm)
    Glotta1: TGlotta;
    procedure Go;
  end;
var
  BomForm: TBomForm;
implementation
{$R *.dfm}
procedure TBomForm.Go;
begin
  Caption := Glotta1.GetTextOrDefault('IDS_0' (* 'Ελλάδα и Россия €' *) ); // Ελλάδα и Россия €
end;
end.
