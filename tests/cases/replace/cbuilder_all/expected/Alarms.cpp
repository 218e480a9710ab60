//---------------------------------------------------------------------------
#include <vcl.h>
#pragma hdrstop

#include "Alarms.h"
#include "ClockMain.h"
//---------------------------------------------------------------------------
#pragma package(smart_init)

bool IsValidTime(const AnsiString &time)
{
  return time.Length() == 5 && time[3] == ':';
}
//---------------------------------------------------------------------------
AnsiString DescribeAlarm(const AnsiString &time)
{
  if (time == "")
    return ClockForm->Glotta1->GetTextOrDefault("IDS_1" /* "no alarm" */ );
  return ClockForm->Glotta1->GetTextOrDefault("IDS_2" /* "alarm at " */ ) + time + ClockForm->Glotta1->GetTextOrDefault("IDS_3" /* " o'clock" */ );
}
//---------------------------------------------------------------------------
