unit Totals;

interface

const
  TotalLabel = 'Total:';
  TaxLabel = 'of it tax:';

function TotalLine(Sum, Tax: Currency): string;

implementation

uses
  SysUtils, Main;

function TotalLine(Sum, Tax: Currency): string;
begin
  Result := TotalLabel + ' ' + CurrToStr(Sum) + ' (' + TaxLabel + ' ' + CurrToStr(Tax) + ')';
  if Sum = 0 then
    Result := MainForm.Glotta1.GetTextOrDefault('IDS_2' (* 'nothing to pay' *) );
end;

end.
