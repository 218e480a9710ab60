#ifndef HardH
#define HardH
#include <Forms.hpp>
class THardForm : public TForm
{
__published:
private:
	void Show(const char* text = "default");
public:
	__fastcall THardForm(TComponent* Owner);
};
extern PACKAGE THardForm *HardForm;
#endif
