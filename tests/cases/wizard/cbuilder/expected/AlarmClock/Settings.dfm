object SettingsModule: TSettingsModule
  OldCreateOrder = False
  OnCreate = DataModuleCreate
  Left = 285
  Top = 161
  Height = 150
  Width = 215
  object GlottaDispatcher1: TGlottaDispatcher
    NumberOfLanguages = 2
    LangNames.Strings = (
      'English'
      'Language N2')
    Language = 'English'
    ActiveLanguage = 1
    Left = 8
    Top = 8
  end
  object GlottaLinked1: TGlottaLinked
    LangDispatcher = GlottaDispatcher1
    AutoSkipEmpties = False
    ChangeLocales = False
    DoRaiseExceptions = False
    IsInheritedOwner = False
    StoreAsUTF8 = False
    TranslateExtendedFirst = False
    UseDefaultLanguage = True
    UseTaskMsgDlg = False
    CommonContainer = ClockForm.Glotta1
    Left = 40
    Top = 8
  end
end
