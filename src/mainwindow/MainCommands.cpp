#include "mainwindow/MainCommands.h"

#include "mainwindow/MainWindow.h"

namespace glotta {

namespace {

constexpr std::string_view File = "&File", SaveLoad = "&File>Save/&Load Translation", View = "&View",
                           Strings = "&Hard-coded strings", Source = "&Hard-coded strings>&Source",
                           Consts = "&Hard-coded strings>&Const Section", Tools = "&Tools", Help = "&Help";
constexpr std::string_view Popup = ".", PopupStrings = "Hard-coded strings";
constexpr bool Button = true;

using W = TfrmGlotta;

// Menus and the popup menu list their commands in this order.
// clang-format off
constexpr MainCommand Commands[] = {
    {"sbCaptions", File, Popup, "&Translate", "Translate|Translate selected form(s)", SelectedForms,
     "Ctrl+T", &W::sbCaptionsClick, Button, &W::HasTransEditor},
    {"Wizard1", File, {}, "&Wizard", "Translation wizard for selected form(s)", SelectedForms, {},
     &W::Wizard1Click},
    {"sbLanguages", File, Popup, "&Languages...", "Languages|Edit languages of selected form(s)",
     SelectedForms, "Ctrl+G", &W::sbLanguagesClick, Button},
    {"sbSaveForms", SaveLoad, {}, "&Save Selected Form(s)...", "Save form(s)|Save selected forms to file",
     SelectedFormFiles, {}, &W::SaveForms1Click, Button},
    {"sbSaveProject", SaveLoad, {}, "Sa&ve Project...", "Save project|Save translations for whole project",
     WholeProject, {}, &W::SaveProject1Click, Button},
    {"N1", SaveLoad, {}, "-", {}},
    {"sbLoadForms", SaveLoad, {}, "&Load Selected Form(s)...",
     "Load form(s)|Load translation for selected forms from file", SelectedFormFiles, {}, &W::LoadForms1Click, Button},
    {"sbLoadProject", SaveLoad, {}, "Loa&d Project...", "Load project|Load translation for whole project",
     WholeProject, {}, &W::LoadProject1Click, Button},
    {"N2", SaveLoad, {}, "-", {}},
    {"MergeForms1", SaveLoad, {}, "&Merge Form(s)...", "Merge translations of selected form(s) from file",
     LocalizedForm, {}, &W::MergeForms1Click},
    {"MergeProject1", SaveLoad, {}, "Mer&ge Project...", "Merge translations of whole project from file",
     MergeProject, {}, &W::MergeProject1Click},
    {"N3", File, {}, "-", {}},
    {"tbAddExternalFile", File, {}, "Add &External File...",
     "Add external file|Add a file that is not part of the project", Always, {}, &W::tbAddExternalFileClick,
     Button},
    {"acProjectSettings", File, {}, "Project Settings...", "Translation settings of the project", Always, {},
     &W::acProjectSettingsExecute, false, &W::HasProjectSettings},
    {"N4", File, {}, "-", {}},
    {"Close1", File, {}, "&Close", {}, Always, "Ctrl+W", &W::Close1Click},

    {"Translatesource1", Source, PopupStrings, "&With form...",
     "Scan source|Scan source of selected form(s) for hard-coded strings", SelectedForms, "Ctrl+H",
     &W::Translatesource1Click, Button, nullptr, nullptr, "Source"},
    {"TranslateUnit1", Source, {}, "With&out form...", "Scan source of a unit for hard-coded strings",
     Always, {}, &W::TranslateUnit1Click},
    {"Const1", Consts, PopupStrings, "&With form...",
     "Scan constants|Scan CONST section of selected form(s) for string constants", SelectedForms, {},
     &W::Const1Click, Button, nullptr, nullptr, "Const Section"},
    {"WithoutForm1", Consts, {}, "With&out form...", "Scan CONST section of a unit for string constants",
     Always, {}, &W::WithoutForm1Click},
    {"N5", Strings, {}, "-", {}},
    {"ViewSkipped1", Strings, {}, "S&kipped Strings...", "Strings skipped by the last scan", Always, {},
     &W::ViewSkipped1Click, false, &W::HasSkipped},

    {"ViewForm1", View, Popup, "&View Form", "View form|Open selected form(s) in the IDE", SelectedForms,
     "F12", &W::ViewForm1Click, Button},
    {"SelectAll1", View, Popup, "Select &All", "Select all forms of the list", Always, "Ctrl+A",
     &W::SelectAll1Click},
    {"N6", View, {}, "-", {}},
    {"StayonTop1", View, Popup, "&Stay on Top", "Keep this window in front of the others", Always, {},
     &W::StayOnTop1Click, false, nullptr, &W::IsStayOnTop},
    {"Dockable1", View, Popup, "&Dockable", "Show this window docked in the IDE", Always, {},
     &W::Dockable1Click, false, &W::CanDock, &W::IsDockable},

    {"Findword1", Tools, {}, "&Find Phrase...",
     "Find phrase|Find the phrase in the translation lists for selected form(s)", SelectedForms, "Ctrl+F",
     &W::Findword1Click, Button},
    {"Replacephrase1", Tools, {}, "&Replace Phrase...",
     "Replace the phrase in the translation lists for selected form(s)", SelectedForms, "Ctrl+R",
     &W::Replacephrase1Click},
    {"N7", Tools, {}, "-", {}},
    {"Updatetranslation1", Tools, Popup, "&Update Translations", "Update translations of selected form(s)",
     SelectedForms, {}, &W::Updatetranslation1Click},
    {"ClearTranslations1", Tools, {}, "Cl&ear Translations", "Clear translations of selected form(s)",
     SelectedForms, {}, &W::ClearTranslations1Click},
    {"Excludeproperties1", Tools, {}, "Exclude properties",
     "Exclude properties from translation for selected form(s)", SelectedForms, {},
     &W::Excludeproperties1Click},
    {"N8", Tools, {}, "-", {}},
    {"CheckunusedIDs1", Tools, {}, "&Check Bad String IDs", "Check string identifiers of selected form(s)",
     LocalizedForm, {}, &W::CheckunusedIDs1Click},
    {"CheckbadstringIDsinunit1", Tools, {}, "Check Bad String IDs in Unit(s)",
     "Check string identifiers of units", Always, {}, &W::CheckbadstringIDsinunit1Click},
    {"N9", Tools, {}, "-", {}},
    {"DictionaryManager1", Tools, {}, "&Dictionary Manager", "Start the dictionary manager", Always, {},
     &W::DictionaryManager1Click},
    {"sbOptions", Tools, Popup, "O&ptions...", "Options|Options of the expert", Always, {},
     &W::sbOptionsClick, Button},

    {"Help1", Help, {}, "&Help", "Help", Always, "F1", &W::Help1Click, false, &W::HasHelp},
    {"About1", Help, Popup, "&About...", "About TGlotta Expert", Always, {}, &W::About1Click},
};
// clang-format on

} // namespace

std::span<const MainCommand> MainCommands() {
    return Commands;
}

} // namespace glotta
