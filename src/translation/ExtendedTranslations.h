// The translation editor's view of a component's extended translations: which properties they are, what these hold,
// and their translations as far as they are collected.
#pragma once
#include "platform/Form.h"
#include "platform/Grid.h"
#include "runtime/CustomLang.h"
#include "runtime/ExtendedTranslations.h"

#include <string>
#include <unordered_map>
#include <vector>

namespace glotta {

class ExtendedGrid : public TGrid {
public:
    // `show` is a set of TransEditorShow.
    ExtendedGrid(const TgxCustomLang& component, unsigned show);
    void List(); // the items as they are now

    std::size_t RowCount() const override { return items_.size(); }
    std::size_t ColumnCount() const override { return headers_.size(); }
    std::string Header(std::size_t column) const override { return headers_[column]; }
    std::string CellText(std::size_t row, std::size_t column) const override;
    const std::vector<ExtendedTranslation>& Items() const { return items_; }

private:
    const TgxCustomLang& component_;
    std::vector<std::string> headers_;
    std::size_t firstLanguage_; // its column
    std::vector<ExtendedTranslation> items_;
    std::unordered_map<std::string, std::string, TextHash, TextEqual> records_; // by identifier
};

class TfrmExtendedTranslations : public TForm {
public:
    // The component outlives the dialog; unless that is left with OK it is afterwards as it was before.
    TfrmExtendedTranslations(Ui& ui, TgxCustomLang& component, unsigned show);

    ExtendedGrid sgItems;
    TAction btAdd, btDelete, btOK, btCancel;

    bool Changed() const { return changed_; }
    bool CloseQuery(Ui& ui, ModalResult result) override;

private:
    void Add();
    void Delete();
    // Nothing, after the message, for what is no text property of a component of the form.
    bool IsUsable(const ExtendedTranslation& item) const;

    Ui& ui_;
    TgxCustomLang& component_;
    std::optional<FormValue> before_;
    bool changed_ = false;
};

} // namespace glotta
