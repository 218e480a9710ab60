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
      'IDS_7'#1'It'#39's "quoted"'#1
      'IDS_8'#1'ends in a backslash \\'#1
      'IDS_9'#1'tab\tnew\nline \x41 \101'#1
      'IDS_10'#1'wide'#1
      'IDS_11'#1'typed'#1
      'IDS_12'#1'text macro'#1
      'IDS_13'#1'raw "string"'#1
      'IDS_14'#1'adjacent literals'#1
      'IDS_18'#1'// no comment'#1
      'IDS_19'#1'/* nor this */'#1
      'IDS_20'#1'behind a quote'#1
      'IDS_21'#1'case a'#1
      'IDS_26'#1'Title'#1
      'IDS_27'#1'yes it is'#1
      'IDS_28'#1'no it is not'#1
      'IDS_29'#1'comment end */ inside'#1
      'IDS_30'#1'left out'#1)
    Left = 8
    Top = 8
  end
end
