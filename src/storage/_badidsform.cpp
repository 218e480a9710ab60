#include "storage/_badidsform.h"

#include "platform/Error.h"
#include "platform/Text.h"
#include "runtime/CustomLang.h"
#include "scanner/SourceFlavour.h"
#include "storage/OpenedUnit.h"
#include "storage/ShowPlace.h"

#include <algorithm>
#include <map>
#include <numeric>
#include <unordered_map>

namespace glotta {

// --- the list ---

std::string BadIDsList::Header(std::size_t column) const {
    static constexpr std::array<const char*, Columns> Headings = {"String ID", "Type", "Info", "File Name"};
    return Headings[column];
}

std::string BadIDsList::CellText(std::size_t row, std::size_t column) const {
    const auto& [bad, fileName, formName] = rows_[row];
    switch (column) {
    case ID:
        return bad.id;
    case Type:
        return bad.Type();
    case Info:
        return bad.Info();
    default:
        return fileName;
    }
}

void BadIDsList::SetRows(std::vector<BadIDRow> rows) {
    rows_ = std::move(rows);
    sorting_ = {};
    RowsReplaced();
}

void BadIDsList::Sort(std::size_t column, bool descending) {
    std::vector<std::string> texts;
    for (std::size_t row = 0; column != Info && row < rows_.size(); ++row)
        texts.push_back(UpperCase(CellText(row, column)));
    const auto isBefore = [&](std::size_t a, std::size_t b) {
        return column == Info ? rows_[a].bad.place < rows_[b].bad.place : texts[a] < texts[b];
    };
    std::vector<std::size_t> order(rows_.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        return descending ? isBefore(b, a) : isBefore(a, b);
    });
    std::vector<BadIDRow> sorted;
    std::vector<int> newIndex(rows_.size());
    for (std::size_t i = 0; i < order.size(); ++i) {
        newIndex[order[i]] = int(i);
        sorted.push_back(std::move(rows_[order[i]]));
    }
    rows_ = std::move(sorted);
    sorting_ = {int(column), descending};
    RowsChanged(newIndex);
}

void BadIDsList::Delete(const std::vector<std::size_t>& rows) {
    std::vector<int> newIndex(rows_.size());
    std::vector<BadIDRow> kept;
    auto next = rows.begin();
    for (std::size_t row = 0; row < rows_.size(); ++row) {
        const bool goes = next != rows.end() && *next == row;
        newIndex[row] = goes ? -1 : int(kept.size());
        if (goes)
            ++next;
        else
            kept.push_back(std::move(rows_[row]));
    }
    rows_ = std::move(kept);
    RowsChanged(newIndex);
}

void BadIDsList::PlacesChanged(const std::string& formName, const TgxCustomLang& component) {
    for (auto& [bad, fileName, checkedForm] : rows_)
        if (bad.problem == BadID::Problem::NotUsed && SameText(bad.formName, formName) &&
            SameText(bad.componentName, component.Name()))
            if (const int place = component.GetIDIndex(bad.id); place >= 0) bad.place = place;
    CellsChanged();
}

// --- the window ---

TfrmBadIDs::TfrmBadIDs(IdeServices& ide) : ide_(ide) {
    caption = "Bad string IDs";
    const auto hasTarget = [this] { return !IDsList.TargetRows().empty(); };
    acViewSource = {"View Source",
                    "Ctrl+V",
                    {},
                    [this] {
                        LVIDsDblClick(IDsList.Row() >= 0 ? std::size_t(IDsList.Row())
                                                         : IDsList.TargetRows().front());
                    },
                    hasTarget,
                    {}};
    acDelete = {"Delete", "Ctrl+Del", {}, [this] { DeleteStringByID(); }, hasTarget, {}};
}

void TfrmBadIDs::LVIDsDblClick(std::size_t row) {
    const auto [bad, fileName, formName] = IDsList.At(row);
    if (bad.problem == BadID::Problem::NotUsed)
        return ShowComponent(ide_, fileName, bad.formName, bad.componentName);
    const std::string quote(FlavourOf(fileName).STRDELIM);
    if (!ShowSourceLine(ide_, fileName, bad.place, quote + bad.id + quote))
        throw Error(fileName + ": cannot be opened");
}

// The components of the chosen rows, each with the identifiers that are to go.
struct TfrmBadIDs::Holders {
    struct Holder {
        OpenedUnit unit;
        TgxCustomLang* component = nullptr;
        std::vector<std::string> ids;

        Holder(IdeServices& ide, const BadIDRow& row) : unit(ide, row.fileName) {
            if (!unit) return;
            for (TgxCustomLang* glotta : unit.Glottas())
                if (SameText(glotta->Name(), row.bad.componentName)) component = glotta;
        }
    };
    std::map<std::pair<std::string, std::string>, Holder> byName; // of form and component

    Holder& Of(IdeServices& ide, const BadIDRow& row) {
        return byName.try_emplace({row.bad.formName, row.bad.componentName}, ide, row).first->second;
    }
};

std::vector<std::size_t> TfrmBadIDs::AskWhatToDelete(Holders& holders) {
    std::vector<std::size_t> rows;
    bool all = false;
    for (const std::size_t row : IDsList.TargetRows()) {
        const BadIDRow& at = IDsList.At(row);
        if (at.bad.problem != BadID::Problem::NotUsed) continue;
        Holders::Holder& holder = holders.Of(ide_, at);
        if (!holder.component || holder.component->GetIDIndex(at.bad.id) < 0) continue;
        const std::string question = "This will delete " + at.bad.id + " from " + at.bad.formName + "." +
                                     at.bad.componentName + "! Continue?";
        const ModalResult answer =
            all ? ModalResult::Yes
                : ide_.GetUi().MessageDlg(
                      question, MsgType::Warning,
                      {ModalResult::Yes, ModalResult::No, ModalResult::Cancel, ModalResult::YesToAll});
        all = all || answer == ModalResult::YesToAll;
        if (answer == ModalResult::Cancel) break;
        if (answer == ModalResult::No) continue;
        holder.ids.push_back(at.bad.id);
        rows.push_back(row);
    }
    return rows;
}

namespace {

// Of several records with one identifier the first goes.
void DeleteRecords(TgxCustomLang& component, const std::vector<std::string>& ids) {
    std::unordered_map<std::string_view, int, TextHash, TextEqual> going;
    for (const std::string& id : ids)
        ++going[id];
    std::vector<std::string> kept;
    for (const std::string& record : component.Strings(stStrings)) {
        const auto found = going.find(RecordField(record, 1));
        if (found != going.end() && found->second > 0)
            --found->second;
        else
            kept.push_back(record);
    }
    component.SetStrings(stStrings, std::move(kept));
}

} // namespace

// All at once, so that a component's list is gone through once, however many go.
void TfrmBadIDs::DeleteStringByID() {
    Holders holders;
    const std::vector<std::size_t> rows = AskWhatToDelete(holders);
    if (rows.empty()) return;
    IDsList.Delete(rows);
    for (auto& [name, holder] : holders.byName) {
        if (holder.ids.empty()) continue;
        DeleteRecords(*holder.component, holder.ids);
        holder.unit.Keep();
        ide_.MarkModifiedForm(holder.unit.FileName());
        IDsList.PlacesChanged(name.first, *holder.component);
    }
}

} // namespace glotta
