//---------------------------------------------------------------------------

#include <vcl.h>
#pragma hdrstop
//---------------------------------------------------------------------------
USEFORM("ClockMain.cpp", ClockForm);
USEFORM("Settings.cpp", SettingsModule); /* TDataModule: File Type */
//---------------------------------------------------------------------------
WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int)
{
  try
  {
    Application->Initialize();
    Application->Title = "Alarm Clock";
    Application->CreateForm(__classid(TClockForm), &ClockForm);
    Application->CreateForm(__classid(TSettingsModule), &SettingsModule);
    Application->Run();
  }
  catch (Exception &exception)
  {
    Application->ShowException(&exception);
  }
  return 0;
}
//---------------------------------------------------------------------------
