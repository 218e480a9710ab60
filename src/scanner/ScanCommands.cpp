#include "scanner/ScanCommands.h"

#include "ide/UnitSourceEditing.h"
#include "platform/Error.h"

namespace glotta {

bool ScanCommands::Translatesource1Click(FormsListItem& item, bool selectionOnly) {
    translation.InsertTGlotta(item);
    return scan.DoScanReplace(item.formName, {}, false, selectionOnly);
}

bool ScanCommands::Const1Click(FormsListItem& item) {
    if (item.languages == "0")
        translation.InsertTGlotta(item);
    if (!ide.IsFileOpen(item.fileName) && !ide.OpenFile(item.fileName, false))
        throw EGlottaSilent();
    InsertHandlers(item);
    return scan.DoScanReplace(item.formName, {}, true, false);
}

bool ScanCommands::TranslateUnit1Click(const std::string& unit, const std::string& stringsForm, bool selectionOnly) {
    return scan.DoScanReplace(unit, StringsForm(stringsForm).formName, false, selectionOnly);
}

bool ScanCommands::WithoutForm1Click(const std::string& unit, const std::string& stringsForm) {
    FormsListItem& form = StringsForm(stringsForm);
    if (!ide.IsFileOpen(form.fileName) && !ide.OpenFile(form.fileName, false))
        throw EGlottaSilent();
    InsertHandlers(form);
    return scan.DoScanReplace(unit, form.formName, true, false);
}

void ScanCommands::InsertHandlers(const FormsListItem& item) {
    InsertFormEvent(ide, item.formName, "FormCreate", false);
    InsertGlottaEvent(ide, item.formName, "ChangeLanguage", false);
    InsertFormMethod(ide, item.formName, "UpdateStrings", false);
}

FormsListItem& ScanCommands::StringsForm(const std::string& name) {
    FormsListItem* form = name.empty() ? nullptr : ide.Forms().FindExact(name);
    if (!form || form->languages == "0") {
        ide.GetUi().MessageDlg("No forms found with TGlotta! Double click on the form to insert TGlotta.",
                               MsgType::Information);
        throw EGlottaSilent();
    }
    return *form;
}

} // namespace glotta
