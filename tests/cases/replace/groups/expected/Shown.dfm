object ShownForm: TShownForm
  Caption = 'ShownForm'
  object Glotta1: TGlotta
    NumberOfLanguages = 2
    LangNames.Strings = (
      'Language N1'
      'Language N2')
    Language = 'Language N1'
    ActiveLanguage = 1
    Strings.Strings = (
      'IDS_0'#1'Shown text'#1
      'IDS_1'#1'Told'#1)
    Left = 8
    Top = 8
  end
end
