unit Receipt;

interface

uses
  SysUtils, Classes, Controls, Forms, Dialogs, StdCtrls, Glotta;

type
  TReceiptForm = class(TForm)
    Memo1: TMemo;
    btnPrint: TButton;
    Glotta1: TGlotta;
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
  Memo1.Lines.Add(Glotta1.GetTextOrDefault('IDS_0' (* 'Получено от: ' *) ) + Customer);
  Memo1.Lines.Add(Glotta1.GetTextOrDefault('IDS_1' (* 'Сумма: ' *) ) + CurrToStr(Sum) + Glotta1.GetTextOrDefault('IDS_2' (* ' руб.' *) ));
end;

procedure TReceiptForm.btnPrintClick(Sender: TObject);
begin
  Fill(Glotta1.GetTextOrDefault('IDS_3' (* 'Иван' *) ), 100);
  if Memo1.Lines.Count = 0 then
    ShowMessage(Glotta1.GetTextOrDefault('IDS_4' (* 'Нечего печатать!' *) ))
  else
    ShowMessage(Glotta1.GetTextOrDefault('IDS_5' (* 'Печать завершена' *) ));
end;

end.
