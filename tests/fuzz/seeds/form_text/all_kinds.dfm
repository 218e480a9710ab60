inherited Form1: TForm1
  Left = -5
  Big = 5000000000
  Caption = 'Don'#39't'#13#10'stop'
  Empty = ''
  Font.Name = 'MS Sans Serif'
  Font.Style = []
  Anchors = [akLeft, akTop]
  Menu = DataModule1.Menu
  Visible = True
  Long = 
    '1234567890123456789012345678901234567890123456789012345678901234' +
    '5'
  Ratio = 1.250000000000000000
  Cost = 1.25c
  When = 36892.5d
  Small = {0102FF}
  Large = {
    0102030405060708090A0B0C0D0E0F101112131415161718191A1B1C1D1E1F20
    21}
  Nothing = ()
  Lines.Strings = (
    'one'
    
      '1234567890123456789012345678901234567890123456789012345678901234' +
      '5')
  DesignSize = (
    10
    20)
  Columns = <
    item
      Caption = 'A'
      Inner = <
        item [2]
          Width = 50
        end>
    end
    item
    end>
  None = <>
  Action = nil
  object Button1: TButton
    OnClick = Button1Click
  end
  inline Frame1: TFrame1 [3]
    object TMenuItem
    end
  end
end
