object PlainForm: TPlainForm
  Caption = 'Open'
end
