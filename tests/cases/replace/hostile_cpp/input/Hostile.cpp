#include <vcl.h>
#pragma hdrstop
USEFORM("Hard.cpp", HardForm);
WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int)
{
  return 0;
}
