unit Czech;
interface
uses Forms, Classes;
type
  TCzechForm = class(TForm)
    procedure Go;
  end;
var
  CzechForm: TCzechForm;
implementation
{$R *.dfm}
procedure TCzechForm.Go;
begin
  Caption := 'Pøíliš luouèkı kùò'; // Pøíliš luouèkı kùò
end;
end.
