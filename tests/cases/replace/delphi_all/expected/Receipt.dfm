object ReceiptForm: TReceiptForm
  Left = 192
  Top = 107
  Width = 400
  Height = 300
  Caption = #202#226#232#242#224#237#246#232#255
  Color = clBtnFace
  Font.Charset = RUSSIAN_CHARSET
  Font.Color = clWindowText
  Font.Height = -11
  Font.Name = 'MS Sans Serif'
  Font.Style = []
  OldCreateOrder = False
  PixelsPerInch = 96
  TextHeight = 13
  object Memo1: TMemo
    Left = 8
    Top = 8
    Width = 375
    Height = 217
    Lines.Strings = (
      'Memo1')
    TabOrder = 0
  end
  object btnPrint: TButton
    Left = 308
    Top = 236
    Width = 75
    Height = 25
    Caption = #207#229#247#224#242#252
    TabOrder = 1
    OnClick = btnPrintClick
  end
  object Glotta1: TGlotta
    NumberOfLanguages = 2
    LangNames.Strings = (
      'Language N1'
      'Language N2')
    Language = 'Language N1'
    ActiveLanguage = 1
    Strings.Strings = (
      'IDS_0'#1#207#238#235#243#247#229#237#238' '#238#242': '#1
      'IDS_1'#1#209#243#236#236#224': '#1
      'IDS_2'#1' '#240#243#225'.'#1
      'IDS_3'#1#200#226#224#237#1
      'IDS_4'#1#205#229#247#229#227#238' '#239#229#247#224#242#224#242#252'!'#1
      'IDS_5'#1#207#229#247#224#242#252' '#231#224#226#229#240#248#229#237#224#1)
    Left = 8
    Top = 8
  end
end
