#include "storage/ReplConfirm.h"

namespace glotta {

TfrmReplConfirm::TfrmReplConfirm(Ui& ui, const PhraseChange& change)
    : lblFileName(change.file), lblProperty(change.property), lblLocation(change.location),
      memCurrent(change.current), memResult(change.result) {
    caption = "Replace Confirmation";
    const auto answer = [&](const char* text, ModalResult result) {
        return TAction{text, {}, {}, [this, &ui, result] { Close(ui, result); }, {}, {}};
    };
    btYes = answer("&Yes", ModalResult::Yes);
    btNo = answer("&No", ModalResult::No);
    btCancel = answer("&Cancel", ModalResult::Cancel);
    btYesToAll = answer("Yes To &All", ModalResult::YesToAll);
}

} // namespace glotta
