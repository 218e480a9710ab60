#include "storage/FoundPhrases.h"

namespace glotta {

namespace {

constexpr FormPlacement DesignedPlacement{100, 350, 550, 200, false};

} // namespace

std::string FoundPhrasesList::Header(std::size_t column) const {
    static constexpr const char* Headers[] = {"File Name:", "Property:", "Line:", "Location:"};
    return Headers[column];
}

std::string FoundPhrasesList::CellText(std::size_t row, std::size_t column) const {
    const FoundPhrase& found = rows_[row];
    switch (column) {
    case FileName:
        return found.fileName;
    case Property:
        return std::string(StringsPropertyName(found.place.kind));
    case Line:
        return std::to_string(found.place.line);
    default:
        return found.location;
    }
}

void FoundPhrasesList::SetRows(std::vector<FoundPhrase> rows) {
    rows_ = std::move(rows);
    RowsReplaced();
}

TfrmFoundPhrases::TfrmFoundPhrases(RegistryStore& registry)
    : Placement(TgxFormStorage(registry, PlacementKey).ReadPlacement().value_or(DesignedPlacement)),
      registry_(registry) {
    caption = "TGlotta Find Phrase";
}

void TfrmFoundPhrases::LVIDsDblClick(std::size_t row) {
    if (row < LVIDs.RowCount() && OnShowPlace) OnShowPlace(LVIDs.At(row));
}

bool TfrmFoundPhrases::CloseQuery(Ui&, ModalResult) {
    TgxFormStorage(registry_, PlacementKey).WritePlacement(Placement());
    open_ = false;
    return true;
}

} // namespace glotta
