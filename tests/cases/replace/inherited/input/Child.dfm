inherited ChildForm: TChildForm
  Caption = 'ChildForm'
end
