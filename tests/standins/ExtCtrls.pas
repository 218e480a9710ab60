unit ExtCtrls;
interface
uses Controls;
type
  TPanel = class(TControl);
implementation
end.
