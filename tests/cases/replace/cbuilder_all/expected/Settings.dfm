object SettingsModule: TSettingsModule
  OldCreateOrder = False
  OnCreate = DataModuleCreate
  Left = 285
  Top = 161
  Height = 150
  Width = 215
  object Glotta1: TGlotta
    NumberOfLanguages = 2
    LangNames.Strings = (
      'Language N1'
      'Language N2')
    Language = 'Language N1'
    ActiveLanguage = 1
    Strings.Strings = (
      'IDS_3'#1'The settings could not be saved in C:\\Clock\\'#1)
    Left = 8
    Top = 8
  end
end
