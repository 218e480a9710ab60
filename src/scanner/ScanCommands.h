// The commands that localize one entry of the forms list, or one unit without a form: what must be there is
// put there first, then the unit is scanned and rewritten.
#pragma once
#include "scanner/ScanReplace.h"
#include "translation/FormTranslation.h"

#include <string>

namespace glotta {

struct ScanCommands {
    FormTranslation& translation;
    ScanReplace& scan;
    IdeServices& ide;

    // The code of a form's unit.
    bool Translatesource1Click(FormsListItem& item, bool selectionOnly = false);
    // The constants of a form's unit; the form gets the handlers that call UpdateStrings.
    bool Const1Click(FormsListItem& item);
    // A unit without its own form; `stringsForm` names the form whose component takes the strings.
    bool TranslateUnit1Click(const std::string& unit, const std::string& stringsForm,
                             bool selectionOnly = false);
    bool WithoutForm1Click(const std::string& unit, const std::string& stringsForm);

private:
    void InsertHandlers(const FormsListItem& item);
    FormsListItem& StringsForm(const std::string& name);
};

} // namespace glotta
