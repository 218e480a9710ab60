unit Main;
interface
uses Forms, GlottaUnit;
type
  TMainForm = class(TForm)
    Glotta1: TGlotta;
    Glotta2: TGlotta;
  end;
var MainForm: TMainForm;
implementation
{$R *.dfm}
uses Data;
procedure Show(const S: string); begin end;
initialization
  Show(MainForm.Glotta1.gettext('hello')); Show(MainForm.Glotta2.GetTextOrDefault('HELLO'));
  // Glotta1.GetText('OLD_ONE') was here
  Show(MainForm.Glotta1.GetText('HELO') + DataForm.Lang.GetTextC('ROWS') + DataForm.Lang.GetTextW('COLS'));
  Show(MainForm.Glotta1.GetText('ITEM_' + 'ONE'));
end.
