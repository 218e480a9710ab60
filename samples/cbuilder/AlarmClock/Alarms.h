//---------------------------------------------------------------------------
#ifndef AlarmsH
#define AlarmsH
//---------------------------------------------------------------------------
bool IsValidTime(const AnsiString &time);
AnsiString DescribeAlarm(const AnsiString &time);
//---------------------------------------------------------------------------
#endif
