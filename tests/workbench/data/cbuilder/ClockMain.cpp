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
  FAlarm = Glotta1->GetTextOrDefault("IDS_9" /* "07:30 am" */ );
}
//---------------------------------------------------------------------------
AnsiString __fastcall TClockForm::StateText(bool on)
{
  // don't show "off" in the caption
  if (on)
    return Glotta1->GetTextOrDefault("IDS_10" /* "The alarm rings at " */ ) + FAlarm;
  return Glotta1->GetTextOrDefault("IDS_11" /* "The alarm is "off"." */ );
}
//---------------------------------------------------------------------------
void __fastcall TClockForm::SetButtonClick(TObject *Sender)
{
  AnsiString time = InputBox(Glotta1->GetTextOrDefault("IDS_12" /* "Set the alarm" */ ), Glotta1->GetTextOrDefault("IDS_13" /* "Time (hh:mm):" */ ), FAlarm);
  if (time == "")
    return; /* "" means: cancelled */
  if (!IsValidTime(time))
  {
    ShowMessage(Glotta1->GetTextOrDefault("IDS_14" /* "This is not a time: " */ ) + time + Glotta1->GetTextOrDefault("IDS_15" /* "\nTry again, please." */ ));
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
      Glotta1->GetTextOrDefault("IDS_16" /* ", good morning!" */ ));
}
//---------------------------------------------------------------------------
