#include "editors/Dntcedit.h"

#include "platform/RegistryStore.h"
#include "platform/Text.h"

#include <algorithm>
#include <limits>

namespace glotta {

namespace {

using Placement = TfrmNotTranslate::Placement;

struct StoredNumber {
    std::string_view name;
    std::optional<int> Placement::*member;
};

constexpr std::array<StoredNumber, 5> StoredNumbers = {{{"Width", &Placement::width},
                                                        {"Height", &Placement::height},
                                                        {"Top", &Placement::top},
                                                        {"Left", &Placement::left},
                                                        {"LeftWidth", &Placement::leftWidth}}};

bool Before(const std::string& a, const std::string& b) {
    return CompareText(a, b) < 0;
}

} // namespace

TfrmNotTranslate::TfrmNotTranslate(Ui& ui, RegistryStore& registry) : ui_(ui), registry_(registry) {
    caption = "Exclude Components";
    const auto move = [](TListBox& from, TListBox& to, const char* text) {
        return TAction{text, {}, "Move selected", [&] { MoveSelected(from, to); },
                       [&from] { return from.SelectedCount() > 0; }, {}};
    };
    const auto moveAll = [](TListBox& from, TListBox& to, const char* text) {
        return TAction{text, {}, "Move all", [&] { MoveAll(from, to); },
                       [&from] { return from.RowCount() > 0; }, {}};
    };
    btMove = move(lbComps, lbSelected, ">");
    btMoveBack = move(lbSelected, lbComps, "<");
    btMoveAll = moveAll(lbComps, lbSelected, ">>");
    btMoveAllBack = moveAll(lbSelected, lbComps, "<<");
    btOK = {"&OK", {}, {}, [this] { Close(ui_, ModalResult::OK); }, {}, {}};
    btCancel = {"&Cancel", {}, {}, [this] { Close(ui_, ModalResult::Cancel); }, {}, {}};
}

void TfrmNotTranslate::MoveSelected(TListBox& from, TListBox& to) {
    std::vector<std::string> items = to.Items();
    for (const std::size_t row : from.SelectedRows())
        items.push_back(from.Items()[row]);
    from.DeleteSelected();
    to.SetItems(std::move(items));
}

// Both lists are sorted for the move and stay as it leaves them.
void TfrmNotTranslate::MoveAll(TListBox& from, TListBox& to) {
    std::vector<std::string> items = to.Items();
    items.insert(items.end(), from.Items().begin(), from.Items().end());
    std::stable_sort(items.begin(), items.end(), Before);
    from.SetItems({});
    to.SetItems(std::move(items));
}

void TfrmNotTranslate::FormShow() {
    constexpr int NotStored = std::numeric_limits<int>::min();
    const TRegIniFile store(registry_, std::string(PlacementKey));
    Placement placement;
    for (const StoredNumber& stored : StoredNumbers)
        if (const int number = store.ReadInteger({}, stored.name, NotStored); number != NotStored)
            placement.*stored.member = number;
    Place.Set(placement);
}

bool TfrmNotTranslate::CloseQuery(Ui&, ModalResult) {
    TRegIniFile store(registry_, std::string(PlacementKey));
    for (const StoredNumber& stored : StoredNumbers)
        if (const std::optional<int> number = Place().*stored.member)
            store.WriteInteger({}, stored.name, *number);
    return true;
}

} // namespace glotta
