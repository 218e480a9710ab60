object MainForm: TMainForm
  object Glotta1: TGlotta
    NumberOfLanguages = 2
    Strings.Strings = (
      'HELLO'#1'Hello'#1'Hallo'
      'OLD_ONE'#1'Old'#1'Alt'
      'TITLE'#1'Shop'#1'Laden')
  end
  object Glotta2: TGlotta
    NumberOfLanguages = 2
    Strings.Strings = (
      'OTHER'#1'Other'#1'Anderer')
  end
end
