unit Main;

interface

uses
  Forms, StdCtrls, Glotta;

type
  TMainForm = class(TForm)
    OpenButton: TButton;
    Glotta1: TGlotta;
  end;

var
  MainForm: TMainForm;

implementation

{$R *.dfm}

end.
