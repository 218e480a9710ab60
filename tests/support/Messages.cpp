#include "support/Messages.h"

#include <algorithm>
#include <string_view>

namespace glotta {
namespace {

using enum MsgType;
constexpr std::string_view Ok = "OK", YesNo = "Yes No", YesNoCancel = "Yes No Cancel",
                           YesNoCancelAll = "Yes No Cancel YesToAll", YesCancelAll = "Yes Cancel YesToAll";

struct KnownMessage {
    std::string_view text; // "*" stands for what is filled in
    MsgType type;
    std::string_view buttons = Ok;
};

// clang-format off
constexpr KnownMessage Messages[] = {
    // IDE
    {"Project is NIL!", Plain},
    {"Unable to obtain the interface of form module! Please check your project source.", Error},
    {"Nil designer", Plain},
    {"TGlotta caused:! *", Plain},
    // source editor
    {"There are no lines selected in the source editor!", Error},
    {"Current project doesn't include * file!", Error},
    {"Current form is not translated!", Error},
    {"* is not used as string identifier!", Error},
    // languages, options
    {"Delete selected language name(s)?", Confirmation, YesNo},
    {"Only one TgxCustomLang", Plain},
    {"Lang error: *", Error},
    {"Selected component is linked to a dispatcher! Do you wish to edit languages of the dispatcher component?", Confirmation, YesNo},
    {"Unable to insert * component! Error message:\r\n*\r\nPlease make sure the active project is a VCL application. "
     "If you have installed both CLX and VCL version please repeat your last action once again.", Error},
    // scan and review
    {"No forms found with TGlotta! Double click on the form to insert TGlotta.", Information},
    {"No strings found in the \"*\" source!", Information},
    {"There are no strings in CONST section of \"*\" unit!", Information},
    {"Source file translated. All string constants added to \"Strings\" property.", Information},
    {"Source file translated. All string constants added to \"Strings\" property.\r\nYou need to change CONST to VAR "
     "declaration or turn ON \"Assignable typed constants\" compiler option!", Information},
    {"Left alone, because the unit would not be sound:*", Information},
    {"Delete selected row (*)?", Confirmation, YesNo},
    {"Delete selected rows?", Confirmation, YesNo},
    {"For automatic generation start ID shall be integer!", Error},
    {"Exclude all \"*\" and add it to Skip Words for future skipping?", Confirmation, YesNo},
    {"This will exclude phrases:\r\n*\r\nand add them to \"Skip Words\" option for future skipping! Continue?", Confirmation, YesNo},
    {"Texts of several lines are not added to \"Skip Words\". They are excluded from this scan only.", Information},
    {"There are some row(s) selected. Continue?", Warning, YesNo},
    {"This will apply changes and modify source code. Continue?", Warning, YesNo},
    {"This will close the Found Strings form! Continue?", Confirmation, YesNo},
    // main window
    {"Could not find *", Plain},
    {"TGlotta Expert (VCL Edition)\r\nMakes the forms and units of a project translatable.", Information},
    // translation editor
    {"Source code that uses \"*\" is not changed. Rename the identifier?", Warning, YesNo},
    {"\"*\" was not found.", Information},
    {"\"*\" was not found in the source.", Information},
    {"The texts without translation are hidden by the filter.", Information},
    {"* of the texts are translated already. Replace them, too?", Confirmation, YesNoCancel},
    {"The translations were changed. Keep the changes?", Confirmation, YesNoCancel},
    // translation files
    {"Project or file is not translated!", Error},
    {"You cannot use empty delimiter!", Error},
    {"The existing delimiter in file differs from new one. This may cause errors in future reading translation "
     "information Continue?", Warning, YesNo},
    {"Unable to export form to file!\r\nError: *. Form: *", Error},
    {"This will clear all translation information in selected form(s)! Continue?", Warning, YesNo},
    // identifiers
    {"Form * is not translated!", Error},
    {"Couldnot open file:\r*\r\nUnit skipped!", Error},
    {"All IDs on form * are used.\rAll internal and external IDs resolved.", Information},
    {"All IDs on selected forms are used.\rAll internal and external IDs resolved.", Information},
    {"All external IDs in unit(s) resolved.", Information},
    {"This will delete * from *.*! Continue?", Warning, YesNoCancelAll},
    {"Couldn't retrieve unit source.\rUnit skipped!", Error},
    {"There is no lines to modify in unit source.", Information},
    {"There was an error occured during source update!", Error},
    {"Source code that uses these identifiers is not changed:*", Warning},
    // exclusion
    {"Adding this property name will empty the TGlotta's \"*\" list! Continue?", Warning, YesNo},
    {"This will iterate through all components and add properties with type equal as selected and might take some time! Continue?", Warning, YesNo},
    {"This will iterate through all components and add properties that apply to specified criterion and might take some time! Continue?", Warning, YesNo},
    {"No property found by this name! Would you like to add \"*\" to the list?", Confirmation, YesNo},
    {"This will clear default list of properties! Continue?", Warning, YesNo},
    {"Delete selected item(s) from list?", Warning, YesNo},
    {"This will remove all items from the current list! Continue?", Warning, YesNo},
    {"This will empty all the exclusion lists! Continue?", Warning, YesNo},
    {"Properties data was changed! Save changes?", Warning, YesNoCancel},
    // wizard
    {"This will insert new TGlottaDispatcher component on selected form! Continue?", Warning, YesNo},
    {"Are you sure want to quit Wizard?", Warning, YesNo},
    {"The following forms could not be configured and are left as they were:*", Warning},
    // component editors
    {"This will delete all translation data stored in component! Continue?", Warning, YesNo},
    {"Unable to locate TGlotta component!", Error},
    {"Click \"Yes\" to exclude * from translations.\r\nClick \"Yes to All\" to exsclude all * components from "
     "translations.\r\nClick \"Cancel\" to cancel this action.", Warning, YesCancelAll},
};
// clang-format on

bool Matches(std::string_view text, std::string_view pattern) {
    const std::size_t star = pattern.find('*');
    if (star == pattern.npos) return text == pattern;
    if (!text.starts_with(pattern.substr(0, star))) return false;
    const std::string_view rest = pattern.substr(star + 1);
    for (std::size_t from = star; from <= text.size(); ++from)
        if (Matches(text.substr(from), rest)) return true;
    return false;
}

std::string_view NameOf(ModalResult button) {
    switch (button) {
    case ModalResult::None: return "None";
    case ModalResult::OK: return "OK";
    case ModalResult::Cancel: return "Cancel";
    case ModalResult::Yes: return "Yes";
    case ModalResult::No: return "No";
    case ModalResult::YesToAll: return "YesToAll";
    }
    return "?";
}

std::string NamesOf(const MsgButtons& buttons) {
    std::string names;
    for (const ModalResult button : buttons)
        names.append(names.empty() ? "" : " ").append(NameOf(button));
    return names;
}

} // namespace

std::string FaultOfMessage(const std::string& text, MsgType type, const MsgButtons& buttons) {
    const std::string names = NamesOf(buttons);
    bool known = false;
    for (const KnownMessage& message : Messages)
        if (Matches(text, message.text)) {
            if (message.type == type && message.buttons == names) return {};
            known = true;
        }
    if (known) return "another kind or other buttons (" + names + ")";
    return type == Error && names == Ok ? std::string() : "not in the table of messages";
}

} // namespace glotta
