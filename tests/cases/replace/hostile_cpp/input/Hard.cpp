//---------------------------------------------------------------------------
#include <vcl.h>
#pragma hdrstop
#include "Hard.h"
#pragma package(smart_init)
#pragma resource "*.dfm"
#define GREETING "macro text"
THardForm *HardForm;
const char* Names[] = { "one", "two" };
static AnsiString Title = "static title";
//---------------------------------------------------------------------------
__fastcall THardForm::THardForm(TComponent* Owner)
  : TForm(Owner)
{
  Caption = "It's \"quoted\"";
  Caption = "ends in a backslash \\";
  Caption = "\\"; /* "in a comment" */
  Caption = "tab\tnew\nline \x41 \101";
  Caption = WideString(L"wide") + "typed";
  Caption = _T("text macro");
  Caption = R"(raw "string")";
  Caption = "adjacent " "literals";
  Caption = "adjacent on "
            "two lines";
  Caption = "with " GREETING;
  Caption = "// no comment" + Caption + "/* nor this */"; // it's "not" one
  char c = '"'; Caption = "behind a quote";
  switch (c) { case 'a': Caption = "case a"; break; }
  static const char* once = "static local";
  char buffer[] = "array";
  sprintf(buffer, "%d items", 3);
  Application->MessageBox("Question", String("Title").c_str(), MB_OK);
  ShowMessage(c ? "yes it is" : "no it is not");
  throw Exception("comment end */ inside");
  Caption = "ignored"; /*TGL:IGNORE*/
  Caption = "continued \
line";
#if 0
  Caption = "left out";
#endif
}
//---------------------------------------------------------------------------
void Free()
{
  ShowMessage("outside of the form");
}
