object BareForm: TBareForm
end
