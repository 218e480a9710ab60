object BomForm: TBomForm
  Caption = 'BomForm'
end
