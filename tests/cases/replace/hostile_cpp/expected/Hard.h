#ifndef HardH
#define HardH
#include <Forms.hpp>
#include "Glotta.hpp"
class THardForm : public TForm
{
__published:
        TGlotta *Glotta1;
private:
	void Show(const char* text = "default");
public:
	__fastcall THardForm(TComponent* Owner);
};
extern PACKAGE THardForm *HardForm;
#endif
