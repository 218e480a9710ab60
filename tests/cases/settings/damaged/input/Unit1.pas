unit Unit1;
