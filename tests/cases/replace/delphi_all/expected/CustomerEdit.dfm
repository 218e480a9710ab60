object CustomerForm: TCustomerForm
  Left = 305
  Top = 220
  BorderStyle = bsDialog
  Caption = 'Customer'
  ClientHeight = 121
  ClientWidth = 297
  Color = clBtnFace
  Font.Charset = DEFAULT_CHARSET
  Font.Color = clWindowText
  Font.Height = -11
  Font.Name = 'MS Sans Serif'
  Font.Style = []
  OldCreateOrder = False
  Position = poScreenCenter
  PixelsPerInch = 96
  TextHeight = 13
  object lbName: TLabel
    Left = 8
    Top = 12
    Width = 31
    Height = 13
    Caption = '&Name:'
    FocusControl = edName
  end
  object edName: TEdit
    Left = 56
    Top = 8
    Width = 233
    Height = 21
    TabOrder = 0
  end
  object cbCountry: TComboBox
    Left = 56
    Top = 40
    Width = 233
    Height = 21
    ItemHeight = 13
    TabOrder = 1
    Items.Strings = (
      'Germany'
      'Poland'
      'Russia')
  end
  object btnOK: TButton
    Left = 132
    Top = 84
    Width = 75
    Height = 25
    Caption = 'OK'
    Default = True
    ModalResult = 1
    TabOrder = 2
    OnClick = btnOKClick
  end
  object btnCancel: TButton
    Left = 214
    Top = 84
    Width = 75
    Height = 25
    Cancel = True
    Caption = 'Cancel'
    ModalResult = 2
    TabOrder = 3
  end
  object Glotta1: TGlotta
    NumberOfLanguages = 2
    LangNames.Strings = (
      'Language N1'
      'Language N2')
    Language = 'Language N1'
    ActiveLanguage = 1
    Strings.Strings = (
      'IDS_5'#1'Dear '#1
      
        'IDS_6'#1'thank you for your order.'#13#10'It will be sent within three da' +
        'ys.'#1
      'IDS_7'#1'Please enter the customer'#39's name!'#1)
    Left = 8
    Top = 8
  end
end
