unit Czech;
interface
uses Forms, Classes, Glotta;
type
  TCzechForm = class(TForm)
    Glotta1: TGlotta;
    procedure Go;
  end;
var
  CzechForm: TCzechForm;
implementation
{$R *.dfm}
procedure TCzechForm.Go;
begin
  Caption := Glotta1.GetTextOrDefault('IDS_0' (* 'Pøíliš luouèkı kùò' *) ); // Pøíliš luouèkı kùò
end;
end.
