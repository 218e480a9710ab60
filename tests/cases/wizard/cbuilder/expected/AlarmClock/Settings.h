//---------------------------------------------------------------------------

#ifndef SettingsH
#define SettingsH
//---------------------------------------------------------------------------
#include <Classes.hpp>
#include <Controls.hpp>
#include <Forms.hpp>
#include "Glotta.hpp"
//---------------------------------------------------------------------------
class TSettingsModule : public TDataModule
{
__published:	// IDE-managed Components
  TGlottaDispatcher *GlottaDispatcher1;
  TGlottaLinked *GlottaLinked1;
  void __fastcall DataModuleCreate(TObject *Sender);
private:	// User declarations
  AnsiString FFileName;
public:		// User declarations
  __fastcall TSettingsModule(TComponent* Owner);
  void __fastcall Save();
};
//---------------------------------------------------------------------------
extern PACKAGE TSettingsModule *SettingsModule;
//---------------------------------------------------------------------------
#endif
