object DataForm: TDataForm
  Caption = 'Data'
  object btnOK: TButton
    Caption = 'OK'
  end
end
