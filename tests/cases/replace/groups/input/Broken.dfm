object BrokenForm: TBrokenForm
  Caption = 'never closed
  object
