//---------------------------------------------------------------------------

#include <vcl.h>
#pragma hdrstop

#include "ClockMain.h"
#include "Alarms.h"
#include "Settings.h"
//---------------------------------------------------------------------------
#pragma package(smart_init)
#pragma link "Glotta"
#pragma resource "*.dfm"
TClockForm *ClockForm;

static const char *DayNames[] = { "Sunday", "Monday", "Tuesday" };
#define PRODUCT "Alarm Clock"
//---------------------------------------------------------------------------
__fastcall TClockForm::TClockForm(TComponent* Owner)
  : TForm(Owner)
{
  FAlarm = "07:30 am";
}
//---------------------------------------------------------------------------
AnsiString __fastcall TClockForm::StateText(bool on)
{
  // don't show "off" in the caption
  if (on)
    return "The alarm rings at " + FAlarm;
  return "The alarm is \"off\".";
}
//---------------------------------------------------------------------------
void __fastcall TClockForm::SetButtonClick(TObject *Sender)
{
  AnsiString time = InputBox("Set the alarm", "Time (hh:mm):", FAlarm);
  if (time == "")
    return; /* "" means: cancelled */
  if (!IsValidTime(time))
  {
    ShowMessage("This is not a time: " + time + "\nTry again, please.");
    return;
  }
  FAlarm = time;
  Caption = StateText(true);
}
//---------------------------------------------------------------------------
void __fastcall TClockForm::Timer1Timer(TObject *Sender)
{
  TimeLabel->Caption = Now().FormatString("hh:nn:ss"); /*TGL:IGNORE*/
  if (TimeLabel->Caption.SubString(1, 5) == FAlarm)
    ShowMessage(AnsiString(DayNames[DayOfWeek(Date()) % 3]) +
      ", good morning!");
}
//---------------------------------------------------------------------------
