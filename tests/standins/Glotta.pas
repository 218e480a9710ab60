unit Glotta;
interface
uses Classes;
type
  TGlotta = class(TComponent)
  public
    function GetText(const ID: string): string;
    function GetTextOrDefault(const ID: string): string;
  end;
implementation
function TGlotta.GetText(const ID: string): string;
begin
  Result := ID;
end;
function TGlotta.GetTextOrDefault(const ID: string): string;
begin
  Result := ID;
end;
end.
