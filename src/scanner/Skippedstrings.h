// The window "Strings Skipped by Expert": what the rules left out of the last scan, and why.
#pragma once
#include "ide/Services.h"
#include "platform/Form.h"
#include "platform/Grid.h"
#include "scanner/FoundStrings.h"
#include "settings/FormStorage.h"

#include <optional>
#include <string>
#include <vector>

namespace glotta {

class RegistryStore;

// The reason as the developer reads it.
const char* SkipReasonText(TStringSkipReason reason);

class TfrmSkippedStrings : public TForm {
public:
    static constexpr const char* PlacementKey = "\\Software\\Quorlane\\TGlotta\\SkippedStrings";

    // Lists what the vector held when the window was made. `source` is the text that was scanned. Without a registry
    // the window's placement is not kept.
    TfrmSkippedStrings(IdeServices& ide, int previewLines, std::vector<TgxSkippedString> skipped,
                       std::string source, RegistryStore* registry = nullptr);

    class SkippedList : public TGrid {
    public:
        explicit SkippedList(const std::vector<TgxSkippedString>& skipped)
            : TGrid(Picking::Single), skipped_(skipped) {}
        std::size_t RowCount() const override { return skipped_.size(); }
        std::size_t ColumnCount() const override { return 1; }
        std::string Header(std::size_t) const override { return "Strings:"; }
        std::string CellText(std::size_t row, std::size_t) const override { return skipped_[row].Text; }

    private:
        const std::vector<TgxSkippedString>& skipped_;
    };

private:
    void ShowChosen();
    IdeServices& ide_;
    int previewLines_;
    std::vector<TgxSkippedString> skipped_;
    std::string source_;
    RegistryStore* registry_;

public:
    SkippedList lbStrings{skipped_};
    TField<std::string> edPreview, edReason;
    TField<std::optional<FormPlacement>> Placement;
    int PreviewLine = 0; // the chosen string's line within the preview, from 0

    std::string StatusText() const { return "Strings Skipped: " + std::to_string(skipped_.size()); }
    bool CloseQuery(Ui& ui, ModalResult result) override;
};

} // namespace glotta
