unit Data;

interface

uses
  Classes, Forms, StdCtrls;

type
  TDataForm = class(TForm)
    btnOK: TButton;
  end;

var
  DataForm: TDataForm;

implementation

{$R *.dfm}

end.
