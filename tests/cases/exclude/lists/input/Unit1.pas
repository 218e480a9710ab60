unit Unit1;

interface

uses
  Forms, StdCtrls, Glotta;

type
  TForm1 = class(TForm)
    Edit1: TEdit;
    Glotta1: TGlotta;
  end;

var
  Form1: TForm1;

implementation

{$R *.dfm}

end.
