object PartForm: TPartForm
  Left = 0
  Top = 0
  Width = 100
end
