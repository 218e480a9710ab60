unit About;

interface

uses
  SysUtils, Classes, Controls, Forms, StdCtrls;

type
  TAboutBox = class(TForm)
    lbProduct: TLabel;
    lbVersion: TLabel;
    btnClose: TButton;
    procedure FormShow(Sender: TObject);
  end;

var
  AboutBox: TAboutBox;

implementation

uses Main;

{$R *.DFM}

procedure TAboutBox.FormShow(Sender: TObject);
begin
  lbProduct.Caption := 'Order Desk';
  lbVersion.Caption := 'Version ' + AppVersion + ' for small shops';
end;

end.
