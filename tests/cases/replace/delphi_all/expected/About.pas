unit About;

interface

uses
  SysUtils, Classes, Controls, Forms, StdCtrls, Glotta;

type
  TAboutBox = class(TForm)
    lbProduct: TLabel;
    lbVersion: TLabel;
    btnClose: TButton;
    Glotta1: TGlotta;
    procedure FormShow(Sender: TObject);
  end;

var
  AboutBox: TAboutBox;

implementation

uses Main;

{$R *.DFM}

procedure TAboutBox.FormShow(Sender: TObject);
begin
  lbProduct.Caption := Glotta1.GetTextOrDefault('IDS_0' (* 'Order Desk' *) );
  lbVersion.Caption := Glotta1.GetTextOrDefault('IDS_1' (* 'Version ' *) ) + AppVersion + Glotta1.GetTextOrDefault('IDS_2' (* ' for small shops' *) );
end;

end.
