//---------------------------------------------------------------------------

#include <vcl.h>
#pragma hdrstop

#include "Settings.h"
//---------------------------------------------------------------------------
#pragma package(smart_init)
#pragma link "Glotta"
#pragma resource "*.dfm"
TSettingsModule *SettingsModule;
//---------------------------------------------------------------------------
__fastcall TSettingsModule::TSettingsModule(TComponent* Owner)
  : TDataModule(Owner)
{
}
//---------------------------------------------------------------------------
void __fastcall TSettingsModule::DataModuleCreate(TObject *Sender)
{
  FFileName = ChangeFileExt(Application->ExeName, ".ini"); /*TGL:IGNORE*/
}
//---------------------------------------------------------------------------
void __fastcall TSettingsModule::Save()
{
  if (!FileExists(FFileName))
    throw Exception("The settings could not be saved in C:\\Clock\\");
}
//---------------------------------------------------------------------------
