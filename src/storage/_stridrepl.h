// The dialog "String ID Replacement": first the units to scan, then, unit by unit, the lines that will
// change.
#pragma once
#include "platform/Form.h"
#include "platform/Grid.h"
#include "storage/RenameCandidates.h"

#include <functional>
#include <string>
#include <vector>

namespace glotta {

class SourceLinesList : public TGrid {
public:
    enum Column : std::size_t { Number, Content, Result, Columns };
    SourceLinesList() : TGrid(Picking::Extended) {}

    std::size_t RowCount() const override { return lines_.size(); }
    std::size_t ColumnCount() const override { return Columns; }
    std::string Header(std::size_t column) const override;
    std::string CellText(std::size_t row, std::size_t column) const override;
    bool CanEdit(std::size_t, std::size_t column) const override { return column == Result; }
    bool Enter(std::size_t row, std::size_t column, const std::string& text) override;

    const std::vector<RenameLine>& Lines() const { return lines_; }
    void SetLines(std::vector<RenameLine> lines);
    void DeleteTargets(); // the selected rows

private:
    std::vector<RenameLine> lines_;
};

class TfrmStrReplace : public TForm {
public:
    explicit TfrmStrReplace(Ui& ui);

    // The stage of the unit selection.
    TListBox lbProjectUnits{"Project Unit(s):", TGrid::Picking::Extended};
    TListBox lbScanUnits{"Unit(s) to be scanned:", TGrid::Picking::Extended};
    TAction btAdd, btAddAll, btRemove, btRemoveAll;

    // The stage of the found lines.
    TField<std::string> lblSourceLines;
    SourceLinesList lvSourceLines;
    TAction acDelete, acInvertSelection, acEditResult; // the pop-up menu

    TAction btHelp, btOK, btCancel;
    std::function<void()> ShowHelp; // empty: no help

    bool ShowsLines() const { return showsLines_; }
    void SetUnits(std::vector<std::string> projectUnits, const std::string& unitToScan);
    void ShowLines(const std::string& fileName, std::vector<RenameLine> lines);

private:
    void Move(TListBox& from, TListBox& to, bool all);
    void EditResult();
    Ui& ui_;
    std::vector<std::string> order_; // of the project
    bool showsLines_ = false;
};

} // namespace glotta
