unit Hard;

{ It's a comment whose apostrophe opens nothing }
interface

uses
  Windows, {$IFDEF CLX} QForms {$ELSE} Forms {$ENDIF}, Classes;

const
  Names: array[1..3] of string = ('one', 'it''s', 'three');
  Pairs: array[0..0] of TPair = ((Key: 'key'; Value: 'value'));

resourcestring
  SFull = 'The disk is full';

type
  IHard = interface
    ['{6E5D2D0A-1B9C-4C71-9C0B-3D2F4A5B6C7D}']
  end;

  [Stored('attribute text')]
  THardForm = class(TForm)
    procedure Ask(const Text: string = 'default text');
  private
    [Hint('field attribute')]
    FText: string;
  end;

  THelper = class
    function Text: string;
  end;

procedure Beep; external 'kernel32.dll' name 'Beep';
procedure Old; deprecated 'use Beep';

var
  HardForm: THardForm;
  Start: string = 'initial value';

implementation

{$R *.dfm}

procedure Old;
begin
  Start := 'outside of the form';
end;

procedure THardForm.Ask(const Text: string);
const
  Local = 'a local constant';
begin
  FText := '''quoted''';
  FText := '''''';
  FText := '' + FText + 'after nothing';
  FText := #13#10'codes first' + #9 + 'and between'#9;
  FText := ^J'control'^M;
  FText := #$41#66'letters as codes';
  FText := 'ends with quote''' + '''starts with quote';
  FText := 'brace { in it' + '(* paren *) //'; // it's 'not' a string
  FText := {'no'} 'comment before' {'nor this'};
  FText := {$IFDEF DEBUG} 'debug branch' {$ELSE} 'other branch' {$ENDIF} + 'after both';
  case Text[1] of
    'a': FText := 'first letter';
    'b'..'d', 'x': FText := 'some letter';
  end;
  if FText = 'x' then Exit;
  Application.MessageBox('Question', PChar('Caption'), MB_OK);
  Application.MessageBox(PChar('It''s typecast' + FText), 'Two', 0);
  raise Exception.CreateFmt('%s: %d items', ['Total' + Text, 1]);
  FText:='tight'+FText+'both sides'+'joined'; FText:='second on the line'
  ; FText := 'one line' + #13 +
    'next line';
  asm
    db 'assembler'
  end;
  FText := 'comment end *) inside';
  FText := 'ignored'; {TGL:IGNORE}
  {TGL:IGNORE ON}
  FText := 'ignored region';
  {TGL:IGNORE OFF}
  FText := 'unclosed;
end;

function THelper.Text: string;
begin
  Result := 'another class';
end;

end.
'it is over'
