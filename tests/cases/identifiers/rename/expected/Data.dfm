object DataForm: TDataForm
  object Lang: TGlotta
    NumberOfLanguages = 1
    Strings.Strings = (
      'LINES'#1'Rows')
  end
end
