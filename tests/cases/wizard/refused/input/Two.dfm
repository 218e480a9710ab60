object FormTwo: TFormTwo
end
