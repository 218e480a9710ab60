object TwoForm: TTwoForm
  Caption = 'TwoForm'
  object First: TGlotta
    NumberOfLanguages = 2
    Strings.Strings = (
      'IDS_0'#1'Two text'#1'Deux'#1
      'sOld'#1'Old text'#1)
    Left = 8
    Top = 8
  end
  object Second: TGlotta
    NumberOfLanguages = 2
    Left = 40
    Top = 8
  end
end
