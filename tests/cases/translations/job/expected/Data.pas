unit Data;

interface

uses
  Classes, Forms, StdCtrls, Glotta;

type
  TDataForm = class(TForm)
    btnOK: TButton;
    Glotta1: TGlotta;
  end;

var
  DataForm: TDataForm;

implementation

{$R *.dfm}

end.
