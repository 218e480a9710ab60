object FormThree: TFormThree
  object Glotta1: TGlotta
    NumberOfLanguages = 2
    LangNames.Strings = (
      'English'
      'Simple English')
    Language = 'English'
    ActiveLanguage = 1
    Captions.Strings = (
      'one'#1'eins'#1'uno')
  end
end
