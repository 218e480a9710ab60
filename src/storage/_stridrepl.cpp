#include "storage/_stridrepl.h"

#include "platform/Files.h"

#include <array>
#include <unordered_set>

namespace glotta {

// --- the found lines ---

std::string SourceLinesList::Header(std::size_t column) const {
    static constexpr std::array<const char*, Columns> Headings = {"Line #", "Line content", "Result line"};
    return Headings[column];
}

std::string SourceLinesList::CellText(std::size_t row, std::size_t column) const {
    const RenameLine& line = lines_[row];
    return column == Number ? std::to_string(line.index) : column == Content ? line.line : line.result;
}

bool SourceLinesList::Enter(std::size_t row, std::size_t, const std::string& text) {
    if (text.find_first_of("\r\n") != std::string::npos) return false;
    lines_[row].result = text;
    CellsChanged();
    return true;
}

void SourceLinesList::SetLines(std::vector<RenameLine> lines) {
    lines_ = std::move(lines);
    RowsReplaced();
}

void SourceLinesList::DeleteTargets() {
    std::vector<int> newIndex(lines_.size());
    for (const std::size_t row : TargetRows())
        newIndex[row] = -1;
    std::vector<RenameLine> kept;
    for (std::size_t row = 0; row < lines_.size(); ++row) {
        if (newIndex[row] < 0) continue;
        newIndex[row] = int(kept.size());
        kept.push_back(std::move(lines_[row]));
    }
    lines_ = std::move(kept);
    RowsChanged(newIndex);
}

// --- the dialog ---

TfrmStrReplace::TfrmStrReplace(Ui& ui) : ui_(ui) {
    caption = "String ID Replacement";
    const auto hasLine = [this] { return showsLines_ && !lvSourceLines.TargetRows().empty(); };
    const auto move = [this](const char* title, const char* hint, TListBox& from, TListBox& to, bool all) {
        return TAction{title,
                       {},
                       hint,
                       [this, &from, &to, all] { Move(from, to, all); },
                       [&from, all] { return all ? from.RowCount() > 0 : from.SelectedCount() > 0; },
                       {}};
    };
    btAdd = move(">", "Scans the selected units", lbProjectUnits, lbScanUnits, false);
    btAddAll = move(">>", "Scans all units", lbProjectUnits, lbScanUnits, true);
    btRemove = move("<", "Does not scan the selected units", lbScanUnits, lbProjectUnits, false);
    btRemoveAll = move("<<", "Scans none", lbScanUnits, lbProjectUnits, true);
    acDelete = {"&Delete", "Del", {}, [this] { lvSourceLines.DeleteTargets(); }, hasLine, {}};
    acInvertSelection = {"&Invert selection",
                         "Ctrl+I",
                         {},
                         [this] { lvSourceLines.InvertSelection(); },
                         [this] { return showsLines_; },
                         {}};
    acEditResult = {"&Edit result line...", "Ctrl+E", {}, [this] { EditResult(); }, hasLine, {}};
    btHelp = {"&Help", {}, {}, [this] { ShowHelp(); }, [this] { return bool(ShowHelp); }, {}};
    btOK = {"&Next >>",
            {},
            {},
            [this] { Close(ui_, ModalResult::OK); },
            [this] { return showsLines_ || lbScanUnits.RowCount() > 0; },
            {}};
    btCancel = {"Cancel", {}, {}, [this] { Close(ui_, ModalResult::Cancel); }, {}, {}};
}

void TfrmStrReplace::SetUnits(std::vector<std::string> projectUnits, const std::string& unitToScan) {
    order_ = projectUnits;
    std::erase_if(projectUnits, [&](const std::string& file) { return SameFileName(file, unitToScan); });
    lbProjectUnits.SetItems(std::move(projectUnits));
    lbScanUnits.SetItems({unitToScan});
}

// Units that come back stand in project order again.
void TfrmStrReplace::Move(TListBox& from, TListBox& to, bool all) {
    std::vector<std::string> stay, moved = to.Items();
    for (std::size_t row = 0; row < from.RowCount(); ++row)
        (all || from.IsSelected(row) ? moved : stay).push_back(from.Items()[row]);
    if (&to == &lbProjectUnits) {
        const std::unordered_set<std::string> present(moved.begin(), moved.end());
        moved.clear();
        for (const std::string& file : order_)
            if (present.contains(file)) moved.push_back(file);
    }
    from.SetItems(std::move(stay));
    to.SetItems(std::move(moved));
}

void TfrmStrReplace::ShowLines(const std::string& fileName, std::vector<RenameLine> lines) {
    showsLines_ = true;
    modalResult = ModalResult::None; // it is shown once more
    btOK.caption = "&Replace";
    lblSourceLines.Set("Unit file: " + fileName +
                       "\rSource line(s) with old string identifier that will be modified:");
    lvSourceLines.SetLines(std::move(lines));
    lvSourceLines.SelectOnly(0);
    if (OnView) OnView();
}

void TfrmStrReplace::EditResult() {
    const std::size_t row =
        lvSourceLines.Row() >= 0 ? std::size_t(lvSourceLines.Row()) : lvSourceLines.TargetRows().front();
    const RenameLine& line = lvSourceLines.Lines()[row];
    const auto text = ui_.InputBox(caption, "Result line:", line.result);
    if (text) lvSourceLines.Enter(row, SourceLinesList::Result, *text);
}

} // namespace glotta
