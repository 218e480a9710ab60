#include "a.h" // "b"
#define X(a) "text" /* c */ \
  a##b
namespace n { template <class T = int> class A : public B { String s = "s"; A(int x = 0x1'0) : B("b"), c{"c"} { f("d"); } }; }
static const char* t[] = { "a", L"b" "c", u8R"x(raw)")x" };
extern "C" { void __fastcall T::f() try { switch (x) { case 'a': g(_T("e") PRIu64); }
#if A
  if (x) { asm { mov ax, '}' ; it's
  } __asm nop
#else
  for (;;) { auto l = [&](int) mutable -> int { return sizeof("x"); };
#endif
  } a[0] = "y\"\
z"; } catch (...) { } }
