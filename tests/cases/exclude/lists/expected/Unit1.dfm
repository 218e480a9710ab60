object Form1: TForm1
  Caption = 'Main'
  object Edit1: TEdit
    Text = 'e'
  end
  object Glotta1: TGlotta
    ExcludedProperties.Strings = (
      'Font')
    SmartExcludeProps.Strings = (
      'Edit1.Text')
  end
end
