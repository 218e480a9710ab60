unit Forms;
interface
uses Classes, Controls;
type
  TForm = class(TControl)
  private
    FModalResult: Integer;
  public
    function ShowModal: Integer;
    procedure Close;
    property ModalResult: Integer read FModalResult write FModalResult;
  end;
  TFormClass = class of TComponent;
  TApplication = class(TComponent)
  private
    FTitle: string;
  public
    procedure Initialize;
    procedure CreateForm(FormClass: TFormClass; var Reference);
    procedure Run;
    property Title: string read FTitle write FTitle;
  end;
var
  Application: TApplication;
implementation
function TForm.ShowModal: Integer;
begin
  Result := FModalResult;
end;
procedure TForm.Close;
begin
end;
procedure TApplication.Initialize;
begin
end;
procedure TApplication.CreateForm(FormClass: TFormClass; var Reference);
begin
end;
procedure TApplication.Run;
begin
end;
end.
