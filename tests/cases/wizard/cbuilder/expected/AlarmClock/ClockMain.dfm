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
    LangDispatcher = SettingsModule.GlottaDispatcher1
    AutoSkipEmpties = False
    ChangeLocales = False
    DoRaiseExceptions = False
    IsInheritedOwner = False
    StoreAsUTF8 = False
    TranslateExtendedFirst = False
    UseDefaultLanguage = True
    UseTaskMsgDlg = False
    Left = 8
    Top = 8
  end
end
