object MainForm: TMainForm
  Caption = 'Open order'
  object OpenButton: TButton
    Caption = 'Open'
  end
  object Glotta1: TGlotta
    Captions.Strings = (
      'MainForm.Caption'#1'Open order'#1#214'ffnen: Auftrag, '#246'ffnen'
      'OpenButton.Caption'#1'Open'#1#214'ffnen')
    LangNames.Strings = (
      'English'
      'Deutsch')
    NumberOfLanguages = 2
    Strings.Strings = (
      'IDS_OPEN'#1'Open the order?'#1'Auftrag '#246'ffnen?'
      'IDS_OPENED'#1'Opened.'#13#10'Open again?'#1)
  end
end
