object MainForm: TMainForm
  Left = 214
  Top = 118
  Width = 540
  Height = 380
  Caption = 'Order Desk'
  Color = clBtnFace
  Font.Charset = DEFAULT_CHARSET
  Font.Color = clWindowText
  Font.Height = -11
  Font.Name = 'MS Sans Serif'
  Font.Style = []
  Menu = MainMenu1
  OldCreateOrder = False
  OnCloseQuery = FormCloseQuery
  OnCreate = FormCreate
  PixelsPerInch = 96
  TextHeight = 13
  object ToolPanel: TPanel
    Left = 0
    Top = 0
    Width = 532
    Height = 33
    Align = alTop
    TabOrder = 0
    object btnNew: TButton
      Left = 4
      Top = 4
      Width = 75
      Height = 25
      Hint = 'Enter a new order'
      Caption = '&New'
      ParentShowHint = False
      ShowHint = True
      TabOrder = 0
      OnClick = New1Click
    end
    object btnDelete: TButton
      Left = 84
      Top = 4
      Width = 75
      Height = 25
      Hint = 'Delete the selected order'
      Caption = '&Delete'
      ParentShowHint = False
      ShowHint = True
      TabOrder = 1
      OnClick = btnDeleteClick
    end
  end
  object OrderList: TListBox
    Left = 0
    Top = 33
    Width = 532
    Height = 281
    Align = alClient
    ItemHeight = 13
    Items.Strings = (
      'no orders yet')
    TabOrder = 1
  end
  object StatusBar: TStatusBar
    Left = 0
    Top = 314
    Width = 532
    Height = 19
    Panels = <>
    SimplePanel = True
  end
  object MainMenu1: TMainMenu
    Left = 200
    Top = 8
    object File1: TMenuItem
      Caption = '&File'
      object New1: TMenuItem
        Caption = '&New order...'
        ShortCut = 16462
        OnClick = New1Click
      end
      object Open1: TMenuItem
        Caption = '&Open...'
        ShortCut = 16463
        OnClick = Open1Click
      end
      object N1: TMenuItem
        Caption = '-'
      end
      object Exit1: TMenuItem
        Caption = 'E&xit'
        OnClick = Exit1Click
      end
    end
    object Help1: TMenuItem
      Caption = '&Help'
      object About1: TMenuItem
        Caption = '&About...'
        OnClick = About1Click
      end
    end
  end
  object OpenDialog1: TOpenDialog
    DefaultExt = 'ord'
    Left = 240
    Top = 8
  end
  object Glotta1: TGlotta
    NumberOfLanguages = 2
    LangNames.Strings = (
      'Language N1'
      'Language N2')
    Language = 'Language N1'
    ActiveLanguage = 1
    Strings.Strings = (
      'IDS_0'#1'Ready'#1)
    Left = 8
    Top = 8
  end
end
