unit Hard;

{ It's a comment whose apostrophe opens nothing }
interface

uses
  Windows, {$IFDEF CLX} QForms {$ELSE} Forms {$ENDIF}, Classes, Glotta;

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
    Glotta1: TGlotta;
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
  FText := Glotta1.GetTextOrDefault('IDS_16' (* ''quoted'' *) );
  FText := '''''';
  FText := '' + FText + Glotta1.GetTextOrDefault('IDS_17' (* 'after nothing' *) );
  FText := Glotta1.GetTextOrDefault('IDS_18' (* ' codes first and between ' *) );
  FText := ^J'control'^M;
  FText := Glotta1.GetTextOrDefault('IDS_20' (* 'ABletters as codes' *) );
  FText := Glotta1.GetTextOrDefault('IDS_21' (* 'ends with quote''starts with quote' *) );
  FText := Glotta1.GetTextOrDefault('IDS_22' (* 'brace { in it(* paren * ) //' *) ); // it's 'not' a string
  FText := {'no'} Glotta1.GetTextOrDefault('IDS_23' (* 'comment before' *) ) {'nor this'};
  FText := {$IFDEF DEBUG} Glotta1.GetTextOrDefault('IDS_24' (* 'debug branch' *) ) {$ELSE} Glotta1.GetTextOrDefault('IDS_25' (* 'other branch' *) ) {$ENDIF} + Glotta1.GetTextOrDefault('IDS_26' (* 'after both' *) );
  case Text[1] of
    'a': FText := Glotta1.GetTextOrDefault('IDS_27' (* 'first letter' *) );
    'b'..'d', 'x': FText := Glotta1.GetTextOrDefault('IDS_28' (* 'some letter' *) );
  end;
  if FText = 'x' then Exit;
  Application.MessageBox('Question', PChar(Glotta1.GetTextOrDefault('IDS_30' (* 'Caption' *) )), MB_OK);
  Application.MessageBox(PChar(Glotta1.GetTextOrDefault('IDS_31' (* 'It's typecast' *) ) + FText), 'Two', 0);
  raise Exception.CreateFmt(Glotta1.GetTextOrDefault('IDS_33' (* '%s: %d items' *) ), [Glotta1.GetTextOrDefault('IDS_34' (* 'Total' *) ) + Text, 1]);
  FText:=Glotta1.GetTextOrDefault('IDS_35' (* 'tight' *) ) + FText+Glotta1.GetTextOrDefault('IDS_36' (* 'both sidesjoined' *) ); FText:=Glotta1.GetTextOrDefault('IDS_37' (* 'second on the line' *) )
  ; FText := Glotta1.GetTextOrDefault('IDS_38' (* 'one line ' *) ) +
    Glotta1.GetTextOrDefault('IDS_39' (* 'next line' *) );
  asm
    db 'assembler'
  end;
  FText := Glotta1.GetTextOrDefault('IDS_41' (* 'comment end * ) inside' *) );
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
