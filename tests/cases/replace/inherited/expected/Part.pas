unit Part;
interface
uses Forms, Classes, Glotta;
type
  TPartForm = class(TFrame)
    Glotta1: TGlotta;
    procedure Go;
  end;
implementation
{$R *.dfm}
procedure TPartForm.Go;
begin
  Caption := Glotta1.GetTextOrDefault('IDS_0' (* 'Part text' *) );
end;
end.
