object BaseForm: TBaseForm
  Caption = 'BaseForm'
end
