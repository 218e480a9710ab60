unit CustomerEdit;

interface

uses
  SysUtils, Classes, Controls, Forms, Dialogs, StdCtrls, Glotta;

type
  ICustomerSource = interface
    ['{6B1D2B34-55C0-4E0C-9C7A-0F3F6D1A2E11}']
    function CustomerName: string;
  end;

  TCustomerForm = class(TForm)
    lbName: TLabel;
    edName: TEdit;
    cbCountry: TComboBox;
    btnOK: TButton;
    btnCancel: TButton;
    Glotta1: TGlotta;
    procedure btnOKClick(Sender: TObject);
  private
    function Greeting(const Name: string): string;
  end;

var
  CustomerForm: TCustomerForm;

function CountryCode(const Country: string): string;

implementation

uses DataMod;

{$R *.DFM}

function CountryCode(const Country: string): string;
begin
  if Country = 'Germany' then
    Result := 'de'
  else if Country = 'Poland' then
    Result := 'pl'
  else
    Result := '??';
end;

function TCustomerForm.Greeting(const Name: string): string;
begin
  Result := Glotta1.GetTextOrDefault('IDS_5' (* 'Dear ' *) ) + Name + ',' + #13#10#13#10 +
    Glotta1.GetTextOrDefault('IDS_6' (* 'thank you for your order. It will be sent within three days.' *) );
end;

procedure TCustomerForm.btnOKClick(Sender: TObject);
begin
  if Trim(edName.Text) = '' then
  begin
    ModalResult := mrNone;
    MessageDlg(Glotta1.GetTextOrDefault('IDS_7' (* 'Please enter the customer's name!' *) ), mtError, [mbOK], 0);
    edName.SetFocus;
  end
  else
  begin
    Data.AddCustomer(edName.Text, CountryCode(cbCountry.Text));
    ShowMessage(Greeting(edName.Text));
  end;
end;

end.
