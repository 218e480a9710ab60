unit Data;
interface
uses Forms, GlottaUnit;
type
  TDataForm = class(TForm)
    Lang: TGlotta;
  end;
var DataForm: TDataForm;
implementation
{$R *.dfm}
function Rows: string; begin Result := Self.Lang.GetText('ROWS') end;
end.
