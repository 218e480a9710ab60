unit One;

interface

uses
  Forms, Glotta;

type
  TFormOne = class(TForm)
    Glotta1: TGlotta;
  end;

implementation

{$R *.dfm}

end.
