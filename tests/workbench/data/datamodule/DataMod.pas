unit DataMod;

interface

uses
  SysUtils, Classes, Forms, Dialogs, Glotta;

const
  DefaultFile = 'customers.txt'; {TGL:IGNORE}
  NotFoundText: string = 'The customer was not found.';

type
  TData = class(TDataModule)
    Glotta1: TGlotta;
    procedure DataModuleCreate(Sender: TObject);
    procedure DataModuleDestroy(Sender: TObject);
  private
    FCustomers: TStringList;
  public
    procedure AddCustomer(const Name, Country: string);
    function Find(const Name: string): Integer;
  end;

var
  Data: TData;

implementation

{$R *.DFM}

procedure TData.DataModuleCreate(Sender: TObject);
begin
  FCustomers := TStringList.Create;
  if FileExists(DefaultFile) then
    FCustomers.LoadFromFile(DefaultFile);
end;

procedure TData.DataModuleDestroy(Sender: TObject);
begin
  FCustomers.Free;
end;

procedure TData.AddCustomer(const Name, Country: string);
begin
  if FCustomers.IndexOf(Name) >= 0 then
    raise Exception.CreateFmt(Glotta1.GetTextOrDefault('IDS_1' (* 'There is a customer named %s already.' *) ), [Name]);
  FCustomers.Add(Name + '=' + Country);
end;

function TData.Find(const Name: string): Integer;
begin
  Result := FCustomers.IndexOfName(Name);
  if Result < 0 then
    ShowMessage(NotFoundText);
end;

end.
