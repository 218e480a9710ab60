//---------------------------------------------------------------------------

#ifndef ClockMainH
#define ClockMainH
//---------------------------------------------------------------------------
#include <Classes.hpp>
#include <Controls.hpp>
#include <StdCtrls.hpp>
#include <Forms.hpp>
#include <ExtCtrls.hpp>
#include "Glotta.hpp"
//---------------------------------------------------------------------------
class TClockForm : public TForm
{
__published:	// IDE-managed Components
  TLabel *TimeLabel;
  TButton *SetButton;
  TTimer *Timer1;
  TGlotta *Glotta1;
  void __fastcall SetButtonClick(TObject *Sender);
  void __fastcall Timer1Timer(TObject *Sender);
private:	// User declarations
  AnsiString FAlarm;
public:		// User declarations
  __fastcall TClockForm(TComponent* Owner);
  AnsiString __fastcall StateText(bool on);
};
//---------------------------------------------------------------------------
extern PACKAGE TClockForm *ClockForm;
//---------------------------------------------------------------------------
#endif
