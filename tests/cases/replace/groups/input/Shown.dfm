object ShownForm: TShownForm
  Caption = 'ShownForm'
end
