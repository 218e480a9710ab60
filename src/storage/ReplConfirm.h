// The dialog "Replace Confirmation": one occurrence, as it is and as it would be.
#pragma once
#include "platform/Form.h"

#include <string>

namespace glotta {

struct PhraseChange {
    std::string file, property, location;
    std::string current, result; // the field's text
};

// Its modal result is the answer: Yes, No, Cancel or YesToAll.
class TfrmReplConfirm : public TForm {
public:
    TfrmReplConfirm(Ui& ui, const PhraseChange& change);

    TField<std::string> lblFileName, lblProperty, lblLocation, memCurrent, memResult;
    TAction btYes, btNo, btCancel, btYesToAll;
    static constexpr const char* Question = "Replace this occurence?";
};

} // namespace glotta
