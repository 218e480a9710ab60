unit Menus;
interface
uses Classes;
type
  TMainMenu = class(TComponent);
  TMenuItem = class(TComponent);
implementation
end.
