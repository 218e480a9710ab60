unit Three;

interface

uses
  Forms;

type
  TFormThree = class(TForm)
  end;

implementation

{$R *.dfm}

end.
