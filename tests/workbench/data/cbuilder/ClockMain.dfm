object ClockForm: TClockForm
  Left = 240
  Top = 160
  BorderStyle = bsDialog
  Caption = 'Alarm Clock'
  ClientHeight = 97
  ClientWidth = 201
  Color = clBtnFace
  Font.Charset = DEFAULT_CHARSET
  Font.Color = clWindowText
  Font.Height = -11
  Font.Name = 'MS Sans Serif'
  Font.Style = []
  OldCreateOrder = False
  PixelsPerInch = 96
  TextHeight = 13
  object TimeLabel: TLabel
    Left = 16
    Top = 16
    Width = 169
    Height = 33
    Alignment = taCenter
    AutoSize = False
    Caption = '00:00:00'
  end
  object SetButton: TButton
    Left = 64
    Top = 60
    Width = 75
    Height = 25
    Caption = '&Set...'
    TabOrder = 0
    OnClick = SetButtonClick
  end
  object Timer1: TTimer
    OnTimer = Timer1Timer
    Left = 8
    Top = 56
  end
  object Glotta1: TGlotta
    NumberOfLanguages = 2
    LangNames.Strings = (
      'Language N1'
      'Language N2')
    Language = 'Language N1'
    ActiveLanguage = 1
    Strings.Strings = (
      'IDS_9'#1'07:30 am'#1
      'IDS_10'#1'The alarm rings at '#1
      'IDS_11'#1'The alarm is "off".'#1
      'IDS_12'#1'Set the alarm'#1
      'IDS_13'#1'Time (hh:mm):'#1
      'IDS_14'#1'This is not a time: '#1
      'IDS_15'#1'\nTry again, please.'#1
      'IDS_16'#1', good morning!'#1)
    Left = 8
    Top = 8
  end
end
