object HardForm: THardForm
  Caption = 'HardForm'
end
