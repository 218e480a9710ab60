object WideForm: TWideForm
  Caption = 'WideForm'
end
