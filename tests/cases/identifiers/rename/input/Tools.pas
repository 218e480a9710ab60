unit Tools;
interface
implementation
uses Data, Main;
function Caption: string;
begin
  Result := DataForm.Lang.GetText('ROWS') + 'ü';
  if Result = 'ROWS' then Result := DataForm.Lang.GetText('GONE');
end;
end.