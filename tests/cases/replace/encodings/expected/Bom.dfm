object BomForm: TBomForm
  Caption = 'BomForm'
  object Glotta1: TGlotta
    NumberOfLanguages = 2
    LangNames.Strings = (
      'Language N1'
      'Language N2')
    Language = 'Language N1'
    ActiveLanguage = 1
    Strings.Strings = (
      'IDS_0'#1#917#955#955#940#948#945' '#1080' '#1056#1086#1089#1089#1080#1103' '#8364#1)
    Left = 8
    Top = 8
  end
end
