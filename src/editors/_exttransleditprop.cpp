#include "editors/_exttransleditprop.h"

#include "runtime/TransEditor.h"

namespace glotta {

void TExtendedTranslationsProperty::Edit() {
    editor_.TransEditorDlg(dynamic_cast<TgxCustomLang&>(Component()), ExtendedTranslationsPlace);
    Modified();
}

} // namespace glotta
