object MixedForm: TMixedForm
  Caption = 'MixedForm'
end
