object SettingsModule: TSettingsModule
  OldCreateOrder = False
  OnCreate = DataModuleCreate
  Left = 285
  Top = 161
  Height = 150
  Width = 215
end
