#include "translation/ConfigureLanguages.h"

#include "platform/Text.h"

#include <charconv>

namespace glotta {

namespace {

const std::string InputCaption = "TGlotta Expert configure languages";
const std::string InputPrompt = "Enter new language name:";

} // namespace

std::string DefaultLanguageName(int number) {
    return "Language N" + std::to_string(number);
}

std::string NextLanguageName(const std::vector<std::string>& names,
                             const std::vector<std::string>& defaultNames) {
    const std::size_t n = names.size();
    const auto isTaken = [&](const std::string& name) {
        return std::any_of(names.begin(), names.end(),
                           [&](const std::string& has) { return SameText(has, name); });
    };
    if (n < defaultNames.size() && !isTaken(defaultNames[n])) return defaultNames[n];
    return DefaultLanguageName(int(n) + 1);
}

TfrmConfigureLanguages::TfrmConfigureLanguages(Ui& ui, const std::vector<std::string>& names,
                                               std::vector<std::string> defaultNames)
    : ui_(ui), defaultNames_(std::move(defaultNames)) {
    caption = "Configure Languages";
    sbUp2.execute = [this] { Step(+1); };
    sbDown2.execute = [this] { Step(-1); };
    btnMoveUp = {"Move &Up", {}, {}, [this] { MoveUp(); }, {}, {}};
    btnMoveDown = {"Move &Down", {}, {}, [this] { MoveDown(); }, {}, {}};
    btnRename = {"&Rename", {}, {}, [this] { Rename(); }, {}, {}};
    btnAdd = {"&Add", {}, {}, [this] { Add(); }, {}, {}};
    btnDelete = {"&Delete", {}, {}, [this] { Delete(); }, {}, {}};
    btnHelp = {"&Help", {}, {}, [this] { ShowHelp(); }, [this] { return bool(ShowHelp); }, {}};
    btOK = {"OK", {}, {}, [this] { Close(ui_, ModalResult::OK); }, [this] { return Count() >= 1; }, {}};
    btCancel = {"Cancel", {}, {}, [this] { Close(ui_, ModalResult::Cancel); }, {}, {}};
    edLangCount.OnChange = [this] { edLangCountChange(); };

    lbLangNames.SetItems(names);
    SetCount(int(names.size()));
}

int TfrmConfigureLanguages::Count() const {
    const std::string_view text = Trim(edLangCount());
    int count = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), count);
    const bool isNumber = error == std::errc() && end == text.data() + text.size();
    return isNumber && count <= MaxLanguages ? count : 0;
}

void TfrmConfigureLanguages::Step(int tag) {
    if (const int count = Count() + tag; count >= 1) SetCount(count);
}

void TfrmConfigureLanguages::SetCount(int count) {
    edLangCount.Set(std::to_string(count));
    edLangCountChange();
}

// A smaller number takes nothing away: names go by "Delete" alone.
void TfrmConfigureLanguages::edLangCountChange() {
    const int count = Count();
    while (int(lbLangNames.RowCount()) < count)
        lbLangNames.Add(NextLanguageName(lbLangNames.Items(), defaultNames_));
    if (OnView) OnView();
}

void TfrmConfigureLanguages::MoveUp() {
    const auto selected = lbLangNames.SelectedRows();
    if (!selected.empty() && selected.front() > 0) lbLangNames.Swap(selected.front(), selected.front() - 1);
}

void TfrmConfigureLanguages::MoveDown() {
    const auto selected = lbLangNames.SelectedRows();
    if (!selected.empty() && selected.back() + 1 < lbLangNames.RowCount())
        lbLangNames.Swap(selected.back(), selected.back() + 1);
}

void TfrmConfigureLanguages::Rename() {
    const auto selected = lbLangNames.SelectedRows();
    if (selected.empty()) return;
    const auto name = ui_.InputBox(InputCaption, InputPrompt, lbLangNames.Items()[selected.front()]);
    if (name && !name->empty()) lbLangNames.Put(selected.front(), *name);
}

void TfrmConfigureLanguages::Add() {
    const auto name = ui_.InputBox(InputCaption, InputPrompt, {});
    if (!name || name->empty()) return;
    lbLangNames.Add(*name);
    SetCount(int(lbLangNames.RowCount()));
}

void TfrmConfigureLanguages::Delete() {
    if (lbLangNames.SelectedCount() == 0) return;
    if (ui_.MessageDlg("Delete selected language name(s)?", MsgType::Confirmation,
                       {ModalResult::Yes, ModalResult::No}) == ModalResult::Yes)
        lbLangNames.DeleteSelected();
}

ModalResult ConfigureLanguages(Ui& ui, std::vector<std::string>& names, const std::string& defaultLangNames) {
    TfrmConfigureLanguages form(ui, names, SplitLines(defaultLangNames));
    const ModalResult result = ui.ShowModal(form);
    if (result == ModalResult::OK) names = form.lbLangNames.Items();
    return result;
}

} // namespace glotta
