// The window "Bad string IDs": identifiers that nothing uses, and calls that ask for none that is there.
#pragma once
#include "ide/Services.h"
#include "platform/Form.h"
#include "platform/Grid.h"
#include "storage/IdentifierCheck.h"

#include <array>
#include <string>
#include <vector>

namespace glotta {

class TgxCustomLang;

struct BadIDRow {
    BadID bad;
    std::string fileName; // the unit that was checked
    std::string formName; // its form, empty without one
};

class BadIDsList : public TGrid {
public:
    enum Column : std::size_t { ID, Type, Info, FileName, Columns };
    BadIDsList() : TGrid(Picking::Extended) {}

    std::size_t RowCount() const override { return rows_.size(); }
    std::size_t ColumnCount() const override { return Columns; }
    std::string Header(std::size_t column) const override;
    std::string CellText(std::size_t row, std::size_t column) const override;
    bool CanSort() const override { return true; }
    void Sort(std::size_t column, bool descending) override; // "Info" by its number
    Sorting SortedBy() const override { return sorting_; }

    const BadIDRow& At(std::size_t row) const { return rows_[row]; }
    void SetRows(std::vector<BadIDRow> rows);
    void Delete(const std::vector<std::size_t>& rows); // ascending
    // Gives the unused identifiers of a component the places that they have now.
    void PlacesChanged(const std::string& formName, const TgxCustomLang& component);

private:
    std::vector<BadIDRow> rows_;
    Sorting sorting_;
};

class TfrmBadIDs : public TForm {
public:
    static constexpr const char* Notice = "TGlotta Expert has detected the following ID(s) as a problematic. "
                                          "Right-click on the item to delete or "
                                          "locate the selected ID.";

    explicit TfrmBadIDs(IdeServices& ide);

    BadIDsList IDsList;
    TField<std::vector<int>> ColumnWidths; // empty until the person chose some
    TAction acViewSource, acDelete;        // the pop-up menu

    std::array<std::string, 2> StatusTexts() const { return {"Total:", std::to_string(IDsList.RowCount())}; }
    // Goes to the line in the source, or to the component that holds the identifier. So does Enter.
    void LVIDsDblClick(std::size_t row);
    // Deletes the selected identifiers from their components, each after a question.
    void DeleteStringByID();

private:
    struct Holders;
    std::vector<std::size_t> AskWhatToDelete(Holders& holders);
    IdeServices& ide_;
};

} // namespace glotta
