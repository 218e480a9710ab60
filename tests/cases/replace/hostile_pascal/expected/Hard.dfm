object HardForm: THardForm
  Caption = 'HardForm'
  object Glotta1: TGlotta
    NumberOfLanguages = 2
    LangNames.Strings = (
      'Language N1'
      'Language N2')
    Language = 'Language N1'
    ActiveLanguage = 1
    Strings.Strings = (
      'IDS_16'#1#39'quoted'#39#1
      'IDS_17'#1'after nothing'#1
      'IDS_18'#1#13#10'codes first'#9'and between'#9#1
      'IDS_20'#1'ABletters as codes'#1
      'IDS_21'#1'ends with quote'#39#39'starts with quote'#1
      'IDS_22'#1'brace { in it(* paren *) //'#1
      'IDS_23'#1'comment before'#1
      'IDS_24'#1'debug branch'#1
      'IDS_25'#1'other branch'#1
      'IDS_26'#1'after both'#1
      'IDS_27'#1'first letter'#1
      'IDS_28'#1'some letter'#1
      'IDS_30'#1'Caption'#1
      'IDS_31'#1'It'#39's typecast'#1
      'IDS_33'#1'%s: %d items'#1
      'IDS_34'#1'Total'#1
      'IDS_35'#1'tight'#1
      'IDS_36'#1'both sidesjoined'#1
      'IDS_37'#1'second on the line'#1
      'IDS_38'#1'one line'#13#1
      'IDS_39'#1'next line'#1
      'IDS_41'#1'comment end *) inside'#1)
    Left = 8
    Top = 8
  end
end
