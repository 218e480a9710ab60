unit Windows;
interface
type
  HWND = LongWord;
const
  MB_OK = 0;
implementation
end.
