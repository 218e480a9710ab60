unit Main;

interface

uses
  Classes, Forms, StdCtrls, Glotta;

type
  TMainForm = class(TForm)
    btnOK: TButton;
    Lang: TGlotta;
  end;

var
  MainForm: TMainForm;

implementation

{$R *.dfm}

end.
