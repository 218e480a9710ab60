#include "editors/_gxcomboproped.h"

#include "editors/FlagPictures.h"
#include "platform/Error.h"
#include "platform/Files.h"

#include <algorithm>

namespace glotta {

TfrmGlottaComboEditor::TfrmGlottaComboEditor(Ui& ui, const std::vector<std::string>& names,
                                             std::vector<TLanguageInfo> infos)
    : LoadPicture(LoadBitmapFile), ui_(ui), infos_(std::move(infos)) {
    caption = "Edit Language Settings";
    btOK = {"OK", {}, {}, [this] { Close(ui_, ModalResult::OK); }, {}, {}};
    btCancel = {"Cancel", {}, {}, [this] { Close(ui_, ModalResult::Cancel); }, {}, {}};
    lbLanguages.SetItems(names);
    lbLanguages.OnChange = [this] { SelectLanguage(lbLanguages.Row()); };
    if (!infos_.empty()) lbLanguages.SelectOnly(0);
}

std::vector<std::string> TfrmGlottaComboEditor::FlagItems() {
    std::vector<std::string> items{"Load...", "Clear"};
    for (std::size_t flag = 0; flag < FlagCount(); ++flag)
        items.push_back(std::to_string(flag));
    return items;
}

void TfrmGlottaComboEditor::Store() {
    if (current_ < 0) return;
    infos_[std::size_t(current_)] = {edLangName(), cbLangFont(),
                                     IdentToCharset(cbLangCharset()).value_or(DefaultCharset), Image()};
}

void TfrmGlottaComboEditor::SelectLanguage(int index) {
    if (index == current_ || index < 0 || std::size_t(index) >= infos_.size()) return;
    Store();
    current_ = index;
    const TLanguageInfo& info = infos_[std::size_t(index)];
    edLangName.Set(info.languageName);
    cbLangFont.Set(info.fontName);
    cbLangCharset.Set(CharsetToIdent(info.fontCharset).value_or("DEFAULT_CHARSET"));
    Image.Set(info.image);
}

void TfrmGlottaComboEditor::cbFlagsChange(int item) {
    if (current_ < 0 || item < 0) return;
    if (item == 0)
        LoadImage();
    else if (item == 1)
        Image.Set({});
    else if (const auto flag = std::size_t(item - FirstFlag); flag < FlagCount())
        Image.Set(FlagBitmap(flag));
}

void TfrmGlottaComboEditor::LoadImage() {
    FileDialog dialog;
    dialog.filter = PictureFilter;
    if (ui_.Execute(dialog) && !dialog.files.empty()) Image.Set(LoadPicture(dialog.files.front()));
}

bool TfrmGlottaComboEditor::CloseQuery(Ui&, ModalResult result) {
    if (result == ModalResult::OK) Store();
    return true;
}

std::string LoadBitmapFile(const std::string& fileName) {
    std::string bytes = ReadFile(PathFromText(fileName));
    if (!IsBitmap(bytes)) throw Error(fileName + ": no picture that can be read");
    return bytes;
}

namespace {

std::vector<std::string> SourceLanguages(const TGlottaCombo& combo, const VisitForm& otherForm) {
    const std::string name = combo.SourceName();
    const std::size_t dot = name.find('.');
    if (dot == std::string::npos) return TGlottaCombo::LanguageNames(combo.Tree().Root(), name);
    std::vector<std::string> names;
    if (otherForm)
        otherForm(name.substr(0, dot), [&](const TComponent& root) {
            names = TGlottaCombo::LanguageNames(root, std::string_view(name).substr(dot + 1));
        });
    return names;
}

} // namespace

ModalResult EditComboSettings(Ui& ui, TGlottaCombo& combo, const VisitForm& otherForm) {
    if (!combo.HasSource()) throw Error("Please assign either Glotta or GlottaDispatcher property first!");
    std::vector<TLanguageInfo> infos = combo.LanguageInfos();
    std::vector<std::string> names = SourceLanguages(combo, otherForm);
    // One item for each language; an item beyond them, or of a component out of reach, goes by its own name.
    for (std::size_t i = infos.size(); i < names.size(); ++i)
        infos.push_back({names[i], {}, DefaultCharset, {}});
    for (std::size_t i = names.size(); i < infos.size(); ++i)
        names.push_back(infos[i].languageName);
    TfrmGlottaComboEditor form(ui, names, std::move(infos));
    const ModalResult result = ui.ShowModal(form);
    if (result == ModalResult::OK && form.Infos() != combo.LanguageInfos()) combo.SetLanguageInfos(form.Infos());
    return result;
}

} // namespace glotta
