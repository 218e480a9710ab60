object Form1: TForm1
  Caption = 'Main'
  object Edit1: TEdit
    Text = 'e'
  end
  object Glotta1: TGlotta
    DoNotTranslate.Strings = (
      '!TTimer')
    ExcludedProperties.Strings = (
      'Hint'
      'Caption')
  end
end
