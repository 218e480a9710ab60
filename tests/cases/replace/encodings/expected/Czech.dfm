object CzechForm: TCzechForm
  Caption = 'CzechForm'
  object Glotta1: TGlotta
    NumberOfLanguages = 2
    LangNames.Strings = (
      'Language N1'
      'Language N2')
    Language = 'Language N1'
    ActiveLanguage = 1
    Strings.Strings = (
      'IDS_0'#1'P'#248#237'li'#154' '#158'lu'#157'ou'#232'k'#253' k'#249#242#1)
    Left = 8
    Top = 8
  end
end
