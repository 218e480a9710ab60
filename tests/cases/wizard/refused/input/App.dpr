program App;

uses
  Forms,
  One in 'One.pas' {FormOne},
  Two in 'Two.pas' {FormTwo},
  Three in 'Three.pas' {FormThree};

begin
end.
