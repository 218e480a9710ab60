//---------------------------------------------------------------------------
#include <vcl.h>
#pragma hdrstop
#include "Hard.h"
#pragma package(smart_init)
#pragma link "Glotta"
#pragma resource "*.dfm"
#define GREETING "macro text"
THardForm *HardForm;
const char* Names[] = { "one", "two" };
static AnsiString Title = "static title";
//---------------------------------------------------------------------------
__fastcall THardForm::THardForm(TComponent* Owner)
  : TForm(Owner)
{
  Caption = Glotta1->GetTextOrDefault("IDS_7" /* "It's "quoted"" */ );
  Caption = Glotta1->GetTextOrDefault("IDS_8" /* "ends in a backslash \\" */ );
  Caption = "\\"; /* "in a comment" */
  Caption = Glotta1->GetTextOrDefault("IDS_9" /* "tab\tnew\nline \x41 \101" */ );
  Caption = WideString(Glotta1->GetTextOrDefault("IDS_10" /* "wide" */ )) + Glotta1->GetTextOrDefault("IDS_11" /* "typed" */ );
  Caption = Glotta1->GetTextOrDefault("IDS_12" /* "text macro" */ );
  Caption = Glotta1->GetTextOrDefault("IDS_13" /* "raw "string"" */ );
  Caption = Glotta1->GetTextOrDefault("IDS_14" /* "adjacent literals" */ );
  Caption = "adjacent on "
            "two lines";
  Caption = "with " GREETING;
  Caption = Glotta1->GetTextOrDefault("IDS_18" /* "// no comment" */ ) + Caption + Glotta1->GetTextOrDefault("IDS_19" /* "/* nor this * /" */ ); // it's "not" one
  char c = '"'; Caption = Glotta1->GetTextOrDefault("IDS_20" /* "behind a quote" */ );
  switch (c) { case 'a': Caption = Glotta1->GetTextOrDefault("IDS_21" /* "case a" */ ); break; }
  static const char* once = "static local";
  char buffer[] = "array";
  sprintf(buffer, "%d items", 3);
  Application->MessageBox("Question", String(Glotta1->GetTextOrDefault("IDS_26" /* "Title" */ )).c_str(), MB_OK);
  ShowMessage(c ? Glotta1->GetTextOrDefault("IDS_27" /* "yes it is" */ ) : Glotta1->GetTextOrDefault("IDS_28" /* "no it is not" */ ));
  throw Exception(Glotta1->GetTextOrDefault("IDS_29" /* "comment end * / inside" */ ));
  Caption = "ignored"; /*TGL:IGNORE*/
  Caption = "continued \
line";
#if 0
  Caption = Glotta1->GetTextOrDefault("IDS_30" /* "left out" */ );
#endif
}
//---------------------------------------------------------------------------
void Free()
{
  ShowMessage("outside of the form");
}
