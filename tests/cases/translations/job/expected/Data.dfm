object DataForm: TDataForm
  Caption = 'Data'
  object btnOK: TButton
    Caption = 'OK'
  end
  object Glotta1: TGlotta
    NumberOfLanguages = 2
    LangNames.Strings = (
      'Language N1'
      'Language N2')
    Language = 'Language N1'
    ActiveLanguage = 1
    Captions.Strings = (
      'DataForm.Caption'#1'Data'#1
      'btnOK.Caption'#1'OK'#1)
    Left = 8
    Top = 8
  end
end
