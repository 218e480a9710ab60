// The window "TGlotta Find Phrase": where a phrase was found. It stays open beside the others, and the next
// search fills it anew.
#pragma once
#include "platform/Form.h"
#include "platform/Grid.h"
#include "settings/FormStorage.h"
#include "storage/Phrase.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace glotta {

class RegistryStore;

struct FoundPhrase {
    std::string formName, componentName, fileName;
    PhrasePlace place;
    std::string location;
    std::string text; // of the whole field
};

class FoundPhrasesList : public TGrid {
public:
    enum Column { FileName, Property, Line, Location };
    FoundPhrasesList() : TGrid(Picking::Single) {}

    std::size_t RowCount() const override { return rows_.size(); }
    std::size_t ColumnCount() const override { return 4; }
    std::string Header(std::size_t column) const override;
    std::string CellText(std::size_t row, std::size_t column) const override;
    std::string Hint(std::size_t row) const override { return rows_[row].text; }

    const FoundPhrase& At(std::size_t row) const { return rows_[row]; }
    void SetRows(std::vector<FoundPhrase> rows);

private:
    std::vector<FoundPhrase> rows_;
};

class TfrmFoundPhrases : public TForm {
public:
    static constexpr const char* PlacementKey = "\\Software\\Quorlane\\TGlotta\\FindForm";

    explicit TfrmFoundPhrases(RegistryStore& registry);

    FoundPhrasesList LVIDs;
    TField<FormPlacement> Placement;

    std::function<void(const FoundPhrase&)> OnShowPlace; // a row was chosen
    void LVIDsDblClick(std::size_t row);                 // double click or Enter

    bool IsOpen() const { return open_; }
    void Opened() { open_ = true; }
    bool CloseQuery(Ui& ui, ModalResult result) override;

private:
    RegistryStore& registry_;
    bool open_ = false;
};

} // namespace glotta
