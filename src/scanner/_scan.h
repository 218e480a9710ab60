// The review of found strings: per row keep, change, delete, exclude for good or mark to be ignored.
#pragma once
#include "ide/Services.h"
#include "platform/Form.h"
#include "runtime/CustomLang.h"
#include "scanner/FoundGrid.h"
#include "scanner/RowEdits.h"
#include "scanner/Skippedstrings.h"

#include <array>
#include <memory>
#include <string>
#include <vector>

namespace glotta {

class ExpertSettings;
class RegistryStore;

// What a review works on; all of it outlives the dialog.
struct ReviewContext {
    IdeServices& ide;
    ExpertSettings& settings;
    RegistryStore& registry;
    TgxFoundSourceStrings& found;
    const std::vector<TgxSkippedString>& skipped;
    const std::string& source; // the whole unit as it was scanned
    const SourceFlavour& flavour;
    std::string unitName;
    std::string component;                 // as replacements name it
    const TgxCustomLang* glotta = nullptr; // the component that receives the strings
};

// Shown modally; OK means that the source is to be modified. Rows that are not to be touched come out with
// Deleted, those to be ignored with Ignored.
class TfrmFound : public TForm {
public:
    explicit TfrmFound(ReviewContext context);
    ~TfrmFound() override;

    FoundGrid sgStrings{true}, sgDeleted{false};

    TAction acModifySource, acCancel, acHelp;
    TAction acDeleteRow, acStartID, acExclude, acMarktoIgnore, acRemoveIgnoreMark, acSwitchDeleted,
        acRestoreDeletedRow, acViewSkipped, acSelectRow, acInvertSelection, acRemoveSelection,
        acDeleteRowsContains, acTypecastPChar;
    std::array<TAction, TextGetterNames.size()> acUseMethod; // below "Use method:"

    // The source around the current row, with the place of its literal in it.
    TField<std::string> edPreview;
    int PreviewLine = 0;                      // from 0
    int PreviewColumn = 0, PreviewLength = 0; // in characters
    TField<std::string> lblNote;              // why no call can stand there

    TField<std::string> pnNotice; // "Use CTRL+Click ..."; its visibility is kept
    TAction acHideNotice;
    TField<std::vector<int>> GridCols; // column widths; empty: the view's own
    TField<int> PreviewHeight;         // 0: the view's own

    bool ShowsDeleted() const { return showsDeleted_; }
    FoundGrid& VisibleGrid() { return showsDeleted_ ? sgDeleted : sgStrings; }
    std::array<std::string, 3> StatusTexts() const;

    bool CloseQuery(Ui& ui, ModalResult result) override;

    std::function<void()> ShowHelp; // the host's; without it "Help" is disabled

private:
    void DeclareActions();
    void DeclareRowActions();
    bool HasTarget() const; // a row of the found strings to work on
    FoundRows Targets() const;
    bool EnterCell(std::size_t row, FoundGrid::Column column, const std::string& text);
    bool EnterID(TgxFoundSourceString& row, const std::string& id);
    bool Ask(const std::string& question, MsgType type = MsgType::Confirmation);
    void MoveToDeleted(const std::function<bool(std::size_t row)>& gone);
    void ForTargets(const std::function<void(TgxFoundSourceString&)>& change);

    void DeleteRow();
    void StartID();
    void Exclude();
    void SwitchDeleted();
    void RestoreDeletedRow();
    void ViewSkipped();
    void DeleteRowsContains();
    void UseMethod(std::string_view method);

    void ShowPreview();
    void Changed();
    void LoadState();
    void SaveState();

    ReviewContext context_;
    Ui& ui_;
    bool showsDeleted_ = false;
    std::string excludeRowsTypedStr_;
    std::unique_ptr<TfrmSkippedStrings> skippedForm_;
};

} // namespace glotta
