object MainForm: TMainForm
  Caption = 'Open order'
  object OpenButton: TButton
    Caption = 'Open'
  end
  object Glotta1: TGlotta
    Captions.Strings = (
      'MainForm.Caption'#1'Open order'#1'aufmachen: Auftrag, aufmachen'
      'OpenButton.Caption'#1'Open'#1'aufmachen')
    LangNames.Strings = (
      'English'
      'Deutsch')
    NumberOfLanguages = 2
    Strings.Strings = (
      'IDS_1'#1'Open the order?'#1'Auftrag aufmachen?'
      'IDS_OPENED'#1'Opened.'#13#10'Open again?'#1)
  end
end
