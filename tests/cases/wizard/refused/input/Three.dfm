object FormThree: TFormThree
  object Glotta1: TGlotta
    NumberOfLanguages = 3
    LangNames.Strings = (
      'A'
      'B'
      'C')
    Captions.Strings = (
      'one'#1'eins'#1'uno')
  end
end
