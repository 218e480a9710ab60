unit Trace;

interface

procedure TraceLine(const S: string);

implementation

procedure TraceLine(const S: string);
begin
  WriteLn(S);
end;

end.
