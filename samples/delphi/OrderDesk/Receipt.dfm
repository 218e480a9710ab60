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
end
