object FormOne: TFormOne
  object Glotta1: TGlotta
    NumberOfLanguages = 2
    LangNames.Strings = (
      'English'
      'Simple English')
    Language = 'English'
    ActiveLanguage = 1
    Left = 8
    Top = 8
  end
end
