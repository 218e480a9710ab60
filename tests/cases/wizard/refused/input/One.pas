unit One;

interface

uses
  Forms;

type
  TFormOne = class(TForm)
  end;

implementation

{$R *.dfm}

end.
