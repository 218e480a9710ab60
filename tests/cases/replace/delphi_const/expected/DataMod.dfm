object Data: TData
  OldCreateOrder = False
  OnCreate = DataModuleCreate
  OnDestroy = DataModuleDestroy
  Left = 285
  Top = 161
  Height = 479
  Width = 741
  object Glotta1: TGlotta
    NumberOfLanguages = 2
    LangNames.Strings = (
      'Language N1'
      'Language N2')
    Language = 'Language N1'
    ActiveLanguage = 1
    Strings.Strings = (
      'strNotFoundText'#1'The customer was not found.'#1)
    OnChangeLanguage = Glotta1ChangeLanguage
    Left = 8
    Top = 8
  end
end
