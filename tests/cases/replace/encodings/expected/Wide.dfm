object WideForm: TWideForm
  Caption = 'WideForm'
  object Glotta1: TGlotta
    NumberOfLanguages = 2
    LangNames.Strings = (
      'Language N1'
      'Language N2')
    Language = 'Language N1'
    ActiveLanguage = 1
    Strings.Strings = (
      'IDS_0'#1#26085#26412#35486' '#55348#56606#1)
    Left = 8
    Top = 8
  end
end
