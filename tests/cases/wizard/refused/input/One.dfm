object FormOne: TFormOne
end
