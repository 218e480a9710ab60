unit Receipt;

interface

uses
  SysUtils, Classes, Controls, Forms, Dialogs, StdCtrls;

type
  TReceiptForm = class(TForm)
    Memo1: TMemo;
    btnPrint: TButton;
    procedure btnPrintClick(Sender: TObject);
  private
    procedure Fill(const Customer: string; Sum: Currency);
  end;

var
  ReceiptForm: TReceiptForm;

implementation

{$R *.DFM}

(* Квитанция для российских клиентов: don't translate the heading *)

procedure TReceiptForm.Fill(const Customer: string; Sum: Currency);
begin
  Memo1.Lines.Clear;
  Memo1.Lines.Add('Квитанция'); {TGL:IGNORE}
  Memo1.Lines.Add('Получено от: ' + Customer);
  Memo1.Lines.Add('Сумма: ' + CurrToStr(Sum) + ' руб.');
end;

procedure TReceiptForm.btnPrintClick(Sender: TObject);
begin
  Fill('Иван', 100);
  if Memo1.Lines.Count = 0 then
    ShowMessage('Нечего печатать!')
  else
    ShowMessage('Печать завершена');
end;

end.
