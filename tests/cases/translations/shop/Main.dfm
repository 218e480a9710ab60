object MainForm: TMainForm
  Left = 0
  Top = 0
  Caption = 'Shop'
  object btnOK: TButton
    Left = 8
    Top = 8
    Caption = 'OK'
    Hint = 'Sell; now [today]'
    TabOrder = 0
  end
  object Lang: TGlotta
    NumberOfLanguages = 3
    LangNames.Strings = (
      'English'
      'Deutsch'
      #1056#1091#1089#1089#1082#1080#1081)
    Language = 'English'
    ActiveLanguage = 1
    Captions.Strings = (
      'btnOK.Caption'#1'Okay'#1'Gut'#1#1061#1086#1088#1086#1096#1086
      'Gone.Caption'#1'gone'#1'weg'#1)
    Strings.Strings = (
      'IDS_0'#1' two'#13#10'lines ~!@#$ '#1'zwei'#13#10'Zeilen'#1
      'IDS_1'#1'"quoted"'#1''#1#1076#1072)
    Left = 8
    Top = 40
  end
end
