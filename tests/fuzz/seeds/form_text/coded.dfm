
 object A:TA
 Caption=#233'x''y'#1055 +
 #55357#56832
 B= 'grü'
end