unit Bare;
interface
uses Forms;
type
  TBareForm = class(TForm)
  end;
var BareForm: TBareForm;
implementation
{$R *.dfm}
function F: string; begin Result := GetText('X') end;
end.
