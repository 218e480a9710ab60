unit Part;
interface
uses Forms, Classes;
type
  TPartForm = class(TFrame)
    procedure Go;
  end;
implementation
{$R *.dfm}
procedure TPartForm.Go;
begin
  Caption := 'Part text';
end;
end.
