#include "translation/TranslUnits.h"

#include "platform/Text.h"

#include <algorithm>

namespace glotta {

namespace {

std::vector<std::string> Sorted(std::vector<std::string> names) {
    std::stable_sort(names.begin(), names.end(),
                     [](const std::string& a, const std::string& b) { return CompareText(a, b) < 0; });
    return names;
}

} // namespace

TfrmTranslUnits::TfrmTranslUnits(Ui& ui, bool severalUnits)
    : lbUnits("", severalUnits ? TGrid::Picking::Extended : TGrid::Picking::Single) {
    caption = "Translating Units without Form";
    btOK = {"&OK",
            {},
            {},
            [this, &ui] { Close(ui, ModalResult::OK); },
            [this] { return !unitName_.empty() && (!formName_.empty() || !cbFormNames.Visible()); },
            {}};
    btCancel = {"&Cancel", {}, {}, [this, &ui] { Close(ui, ModalResult::Cancel); }, {}, {}};
    edUnitName.OnChange = [this] { edUnitNameChange(); };
    cbFormNames.OnChange = [this] { UpdateChoice(); };
    lbUnits.OnChange = [this] { lbUnitsClick(); };
}

void TfrmTranslUnits::SetUnits(std::vector<std::string> names) {
    lbUnits.SetItems(Sorted(std::move(names)));
}

void TfrmTranslUnits::SetFormNames(std::vector<std::string> names) {
    formNames_ = Sorted(std::move(names));
    UpdateChoice();
}

void TfrmTranslUnits::ShowFormNames(bool on) {
    cbFormNames.Show(on);
    lblForms.Show(on);
    UpdateChoice();
}

void TfrmTranslUnits::UpdateChoice() {
    const auto selected = lbUnits.SelectedRows();
    unitName_ = selected.empty() ? std::string() : lbUnits.Items()[selected.front()];
    formName_ = cbFormNames();
    if (OnView) OnView();
}

// The current entry itself counts, so that typing on keeps an entry that still fits.
void TfrmTranslUnits::edUnitNameChange() {
    const int count = int(lbUnits.RowCount());
    const int start = std::max(lbUnits.Row(), 0);
    int found = -1;
    for (int i = 0; i < count && found < 0; ++i) {
        const int row = (start + i) % count;
        if (StartsWithText(lbUnits.Items()[std::size_t(row)], edUnitName())) found = row;
    }
    searching_ = true;
    lbUnits.SelectOnly(found);
    searching_ = false;
}

void TfrmTranslUnits::lbUnitsClick() {
    if (!searching_ && lbUnits.Row() >= 0) edUnitName.Set(lbUnits.Items()[std::size_t(lbUnits.Row())]);
    UpdateChoice();
}

void TfrmTranslUnits::WalkList(int step) {
    const int last = int(lbUnits.RowCount()) - 1;
    if (last >= 0) lbUnits.SelectOnly(std::clamp(lbUnits.Row() + step, 0, last));
}

int TfrmTranslUnits::ScrollExtent(const std::function<int(const std::string&)>& width) const {
    int widest = 0;
    for (const std::string& name : lbUnits.Items())
        widest = std::max(widest, width(name));
    return widest + 20;
}

} // namespace glotta
