object Form2: TForm2
end
