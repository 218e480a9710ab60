unit Two;

interface

implementation

{$R *.dfm}

end.
