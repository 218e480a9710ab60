unit Unit2;

interface

uses
  Forms, StdCtrls, Glotta;

type
  TForm2 = class(TForm)
    Edit1: TEdit;
    Glotta1: TGlotta;
  end;

var
  Form2: TForm2;

implementation

{$R *.dfm}

end.
