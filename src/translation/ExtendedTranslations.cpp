#include "translation/ExtendedTranslations.h"

#include "runtime/TransEditor.h"

namespace glotta {
namespace {

constexpr const char* Property = "ExtendedTranslations";

const TComponent* ComponentNamed(const TgxCustomLang& localization, std::string_view name) {
    const TComponent& root = localization.Tree().Root();
    return SameText(root.Name(), name) ? &root : root.FindComponent(name);
}

bool IsText(TTypeKind kind) {
    return kind == TTypeKind::tkString || kind == TTypeKind::tkLString || kind == TTypeKind::tkWString;
}

} // namespace

// --- items ---

ExtendedGrid::ExtendedGrid(const TgxCustomLang& component, unsigned show)
    : TGrid(Picking::Single), component_(component), headers_{"Component", "Property"} {
    if (show & tsValue) headers_.push_back("Value");
    firstLanguage_ = headers_.size();
    if (show & tsTranslations)
        for (int language = 1; language <= component.NumberOfLanguages(); ++language)
            headers_.push_back(component.LangNames()[std::size_t(language - 1)]);
    for (int kind = 0; kind < StringsTypeCount; ++kind)
        if (kind != stStrings)
            for (const std::string& record : component.Strings(TStringsType(kind)))
                records_.emplace(RecordField(record, 1), record);
    List();
}

void ExtendedGrid::List() {
    items_ = ReadExtendedTranslations(component_);
    RowsReplaced();
}

std::string ExtendedGrid::CellText(std::size_t row, std::size_t column) const {
    const ExtendedTranslation& item = items_[row];
    if (column == 0) return item.component;
    if (column == 1) return item.property;
    if (column < firstLanguage_) {
        const TComponent* component = ComponentNamed(component_, item.component);
        return component ? component->GetStrProp(item.property) : std::string();
    }
    const auto record = records_.find(item.ID());
    return record == records_.end() ? std::string() : RecordField(record->second, int(column - firstLanguage_) + 2);
}

// --- dialog ---

TfrmExtendedTranslations::TfrmExtendedTranslations(Ui& ui, TgxCustomLang& component, unsigned show)
    : sgItems(component, show), ui_(ui), component_(component) {
    caption = "Extended Translations - " + component.Name();
    if (const FormProperty* items = component.Node().Find(Property)) before_ = items->value;
    if (sgItems.RowCount() > 0) sgItems.SelectOnly(0);
    btAdd = {"&Add...", "Ins", "Adds a property whose text is to be translated", [this] { Add(); }, {}, {}};
    btDelete = {"&Delete", "Ctrl+Del", "Takes the property off the list", [this] { Delete(); },
                [this] { return sgItems.Row() >= 0; }, {}};
    btOK = {"OK", {}, {}, [this] { Close(ui_, ModalResult::OK); }, {}, {}};
    btCancel = {"Cancel", {}, {}, [this] { Close(ui_, ModalResult::Cancel); }, {}, {}};
}

bool TfrmExtendedTranslations::IsUsable(const ExtendedTranslation& item) const {
    const TComponent* component = ComponentNamed(component_, item.component);
    if (!component) {
        ui_.MessageDlg("The form has no component \"" + item.component + "\"!", MsgType::Error);
        return false;
    }
    const auto property = component->FindProperty(item.property);
    if (!property || !IsText(property->kind)) {
        ui_.MessageDlg("\"" + item.component + "\" has no text property \"" + item.property + "\"!", MsgType::Error);
        return false;
    }
    for (const ExtendedTranslation& listed : sgItems.Items())
        if (SameText(listed.ID(), item.ID())) {
            ui_.MessageDlg("\"" + item.ID() + "\" is in the list already!", MsgType::Error);
            return false;
        }
    return true;
}

void TfrmExtendedTranslations::Add() {
    const auto typed = ui_.InputBox("Extended Translations", "Component and property, parted by a dot:", {});
    if (!typed || Trim(*typed).empty()) return;
    const std::string_view text = Trim(*typed);
    const std::size_t dot = std::min(text.find('.'), text.size());
    const ExtendedTranslation item{std::string(text.substr(0, dot)),
                                   std::string(text.substr(std::min(dot + 1, text.size())))};
    if (!IsUsable(item)) return;
    AddExtendedTranslation(component_, item);
    sgItems.List();
    sgItems.SelectOnly(int(sgItems.RowCount()) - 1);
}

void TfrmExtendedTranslations::Delete() {
    const int row = sgItems.Row();
    DeleteExtendedTranslation(component_, std::size_t(row));
    sgItems.List();
    sgItems.SelectOnly(std::min(row, int(sgItems.RowCount()) - 1));
}

bool TfrmExtendedTranslations::CloseQuery(Ui&, ModalResult result) {
    const FormProperty* items = component_.Node().Find(Property);
    const bool differs = items ? !before_ || !(items->value == *before_) : before_.has_value();
    changed_ = result == ModalResult::OK && differs;
    if (result == ModalResult::OK || !differs) return true;
    if (before_)
        component_.Node().Set(Property, *before_);
    else
        component_.Node().Remove(Property);
    return true;
}

} // namespace glotta
