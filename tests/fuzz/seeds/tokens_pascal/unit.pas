unit Main;
{ a comment with 'quotes' } (* and '' *) // don't
{$R *.DFM} (*$I 'x.inc'*)
interface
uses SysUtils {$IFDEF A}, Other in 'Other.pas'{$ENDIF};
const
  C: array['a'..'b'] of string = ('it''s'#13#10'x', #$41^M'y');
type
  IFoo = interface(IBase) ['{00000000-0000-0000-C000-000000000046}'] end;
  [Attr('x')] TFoo<T: class> = class(TBase)
  private const D = 'd';
    procedure P(const S: string = 'default'); message 'm';
  end;
implementation
procedure TFoo.P;
var S: string;
begin
  case S[1] of 'a'..'c', 'd': Foo('text'); else Bar(procedure begin Baz('in') end); end;
  repeat try S := '''
    text block
    '''; except end until p^['a'] = 1.5e3;
{$IFDEF B} asm mov al, 'x' ; don't {$ELSE} begin {$ENDIF} end;
end;
function F: Integer; external 'dll' name 'f';
initialization
end. 'behind'
