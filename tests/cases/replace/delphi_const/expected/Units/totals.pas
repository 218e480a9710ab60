unit Totals;

interface

const
	TotalLabel: string = '' (* 'Total:' *); // TGL: Localized (Don't modify!)
	TaxLabel: string = '' (* 'of it tax:' *); // TGL: Localized (Don't modify!)

function TotalLine(Sum, Tax: Currency): string;

implementation

uses
  SysUtils;

function TotalLine(Sum, Tax: Currency): string;
begin
  Result := TotalLabel + ' ' + CurrToStr(Sum) + ' (' + TaxLabel + ' ' + CurrToStr(Tax) + ')';
  if Sum = 0 then
    Result := 'nothing to pay';
end;

end.
