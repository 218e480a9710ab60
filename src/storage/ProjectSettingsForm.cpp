#include "storage/ProjectSettingsForm.h"

#include "platform/Error.h"
#include "platform/Files.h"
#include "platform/Text.h"
#include "storage/DictionaryLanguages.h"

#include <variant>

namespace glotta {
namespace {

using Form = TfrmProjectTranslationSettings;

enum class Shown { AsIs, Inverted, ItemOfForms };

// Which control shows which option, in the order of the options.
struct OptionControl {
    std::variant<TField<std::string> Form::*, TField<bool> Form::*> control;
    Shown shown = Shown::AsIs;
};
const OptionControl Controls[] = {
    {&Form::edDictionary},
    {&Form::cbBaseLanguage},
    {&Form::ckbConfirm, Shown::Inverted},
    {&Form::ckbCaseSensitive}, // holds "IgnoreCase" as it is
    {&Form::ckbSkipAmpersands},
    {&Form::ckbParseMultilines},
    {&Form::ckbOverwrite},
    {&Form::ckbForceEmpties},
    {&Form::edTranslationFile},
    {&Form::cbFormForUnits, Shown::ItemOfForms},
    {&Form::cbDispatcherForm, Shown::ItemOfForms},
    {&Form::cbCommonContainerForm, Shown::ItemOfForms},
};

// `kind` is the dialog without the file name.
void Browse(Ui& ui, FileDialog dialog, TField<std::string>& edit) {
    dialog.title = "Select file name...";
    dialog.fileName = edit();
    if (!ui.Execute(dialog)) return;
    edit.Set(dialog.files.empty() ? dialog.fileName : dialog.files.front());
    if (edit.OnChange) edit.OnChange();
}

} // namespace

TfrmProjectTranslationSettings::TfrmProjectTranslationSettings(Ui& ui, const TGlottaProjectSettings& settings,
                                                               std::vector<std::string> formNames)
    : ui_(ui) {
    caption = "Project Translation Settings";
    std::sort(formNames.begin(), formNames.end(),
              [](const auto& a, const auto& b) { return CompareText(a, b) < 0; });
    formNames.insert(formNames.begin(), std::string()); // to choose none
    formNames_.Assign(std::move(formNames));
    edDictionary.OnChange = [this] { DictionaryChanged(); };
    cbBaseLanguage.OnChange = [this] { CheckBaseLanguage(); };
    btDictionary = {"...",
                    {},
                    {},
                    [this] {
                        FileDialog dialog;
                        dialog.defaultExtension = "dic";
                        dialog.filter = "Dictionaries (*.dic)|*.dic|XML dictionaries (*.dix)|*.dix";
                        Browse(ui_, std::move(dialog), edDictionary);
                    },
                    {},
                    {}};
    btTranslationFile = {"...",
                         {},
                         {},
                         [this] {
                             FileDialog dialog;
                             dialog.mustExist = false; // it is to be saved, perhaps
                             dialog.defaultExtension = "glb";
                             dialog.filter =
                                 "TGlotta text files (*.glt)|*.glt|TGlotta binary files (*.glb)|*.glb";
                             Browse(ui_, std::move(dialog), edTranslationFile);
                         },
                         {},
                         {}};
    btOK = {"OK", {}, {}, [this] { Close(ui_, ModalResult::OK); }, {}, {}};
    btCancel = {"Cancel", {}, {}, [this] { Close(ui_, ModalResult::Cancel); }, {}, {}};
    Fill(settings);
}

void TfrmProjectTranslationSettings::Fill(const TGlottaProjectSettings& settings) {
    const OptionControl* control = Controls;
    for (const ProjectOption& option : ProjectOptions()) {
        const std::string value = settings.GetOptionValue(option.name);
        if (const auto* check = std::get_if<TField<bool> Form::*>(&control->control)) {
            (this->**check).Set(settings.GetOptionFlag(option.name) != (control->shown == Shown::Inverted));
        } else {
            const int item = formNames_.IndexOf(value);
            auto& text = this->*std::get<TField<std::string> Form::*>(control->control);
            if (control->shown != Shown::ItemOfForms)
                text.Set(value);
            else
                text.Set(item < 0 ? std::string() : formNames_[static_cast<std::size_t>(item)]);
        }
        ++control;
    }
    try {
        DictionaryChanged();
    } catch (const Error& error) { // the dialog is where another dictionary can be chosen
        ui_.MessageDlg(error.what(), MsgType::Error);
    }
}

void TfrmProjectTranslationSettings::WriteTo(TGlottaProjectSettings& settings) const {
    const OptionControl* control = Controls;
    for (const ProjectOption& option : ProjectOptions()) {
        if (const auto* check = std::get_if<TField<bool> Form::*>(&control->control))
            settings.SetOptionValue(option.name,
                                    (this->**check)() != (control->shown == Shown::Inverted) ? "1" : "0");
        else
            settings.SetOptionValue(option.name,
                                    (this->*std::get<TField<std::string> Form::*>(control->control))());
        ++control;
    }
}

void TfrmProjectTranslationSettings::DictionaryChanged() {
    const std::filesystem::path file = PathFromText(edDictionary());
    std::error_code failed;
    if (std::filesystem::is_regular_file(file, failed)) {
        const bool binary = LowerExtension(edDictionary()) == ".dic";
        baseLanguages_.Assign(binary ? ReadDicLanguages(file) : ReadDixLanguages(file));
    }
    CheckBaseLanguage();
}

void TfrmProjectTranslationSettings::CheckBaseLanguage() {
    const std::string& language = cbBaseLanguage();
    imWarning.Set(!language.empty() && !baseLanguages_.Empty() && baseLanguages_.IndexOf(language) < 0);
}

void TfrmProjectTranslationSettings::ShowPage(bool project) {
    sbDictionary.Set(!project);
    sbProject.Set(project);
}

void DisplayEditDialog(Ui& ui, TGlottaProjectSettings& settings, std::vector<std::string> formNames) {
    TfrmProjectTranslationSettings form(ui, settings, std::move(formNames));
    if (ui.ShowModal(form) != ModalResult::OK) return;
    form.WriteTo(settings);
    settings.SaveFile();
}

} // namespace glotta
