object DataForm: TDataForm
  object Lang: TGlotta
    NumberOfLanguages = 1
    Strings.Strings = (
      'ROWS'#1'Rows')
  end
end
