object CzechForm: TCzechForm
  Caption = 'CzechForm'
end
