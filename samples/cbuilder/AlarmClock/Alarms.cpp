//---------------------------------------------------------------------------
#include <vcl.h>
#pragma hdrstop

#include "Alarms.h"
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
    return "no alarm";
  return "alarm at " + time + " o'clock";
}
//---------------------------------------------------------------------------
