program Family;
uses
  Forms,
  Child in 'Child.pas' {ChildForm},
  Base in 'Base.pas' {BaseForm},
  Part in 'Part.pas' {PartForm: TFrame},
  Two in 'Two.pas' {TwoForm};
{$R *.res}
begin
  Application.Run;
end.
