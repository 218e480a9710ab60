object PartForm: TPartForm
  Left = 0
  Top = 0
  Width = 100
  object Glotta1: TGlotta
    NumberOfLanguages = 2
    LangNames.Strings = (
      'Language N1'
      'Language N2')
    Language = 'Language N1'
    ActiveLanguage = 1
    Strings.Strings = (
      'IDS_0'#1'Part text'#1)
    Left = 8
    Top = 8
  end
end
