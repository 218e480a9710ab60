#include "scanner/_scan.h"

#include "platform/RegistryStore.h"
#include "platform/Text.h"
#include "scanner/ReplacementText.h"
#include "scanner/SourceMarks.h"
#include "settings/ExpertSettings.h"

#include <charconv>
#include <unordered_set>

namespace glotta {

namespace {

const std::string InputCaption = "TGlotta Expert";

} // namespace

TfrmFound::TfrmFound(ReviewContext context) : context_(std::move(context)), ui_(context_.ide.GetUi()) {
    caption = "Found String Constants (" + context_.unitName + ")";
    pnNotice.Set("Use CTRL+Click and SHIFT+Click to select multiple rows at once.");
    DeclareActions();
    DeclareRowActions();
    LoadState();
    for (FoundGrid* grid : {&sgStrings, &sgDeleted})
        grid->OnChange = [this, grid] {
            if (grid == &VisibleGrid()) Changed();
        };
    sgStrings.OnEnter = [this](std::size_t row, FoundGrid::Column column, const std::string& text) {
        return EnterCell(row, column, text);
    };
    FoundRows found, deleted;
    for (std::size_t i = 0; i < context_.found.Count(); ++i)
        (context_.found[i].Deleted ? deleted : found).push_back(&context_.found[i]);
    sgDeleted.Add(deleted);
    sgStrings.Add(found);
    if (!found.empty()) sgStrings.SetRow(0);
}

TfrmFound::~TfrmFound() {
    if (skippedForm_ && skippedForm_->OnClose) skippedForm_->OnClose(); // its window may still be open
}

// --- what the commands have in common ---

bool TfrmFound::HasTarget() const {
    return !showsDeleted_ && (sgStrings.SelectedCount() > 0 || sgStrings.Row() >= 0);
}

FoundRows TfrmFound::Targets() const {
    FoundRows rows;
    for (const std::size_t row : sgStrings.TargetRows())
        rows.push_back(&sgStrings.At(row));
    return rows;
}

bool TfrmFound::Ask(const std::string& question, MsgType type) {
    return ui_.MessageDlg(question, type, {ModalResult::Yes, ModalResult::No}) == ModalResult::Yes;
}

void TfrmFound::ForTargets(const std::function<void(TgxFoundSourceString&)>& change) {
    for (TgxFoundSourceString* row : Targets())
        change(*row);
    sgStrings.Refresh();
    Changed();
}

void TfrmFound::MoveToDeleted(const std::function<bool(std::size_t row)>& gone) {
    const FoundRows rows = sgStrings.Take(gone);
    for (TgxFoundSourceString* row : rows)
        row->Deleted = true;
    sgDeleted.Add(rows);
    Changed();
}

void TfrmFound::Changed() {
    ShowPreview();
    if (OnView) OnView();
}

void TfrmFound::ShowPreview() {
    const TgxFoundSourceString* row = VisibleGrid().Current();
    if (!row) {
        edPreview.Set({});
        lblNote.Set({});
        return;
    }
    PreviewColumn = row->Column;
    PreviewLength = int(CharCount(row->SourceText));
    edPreview.Set(GetCurrentSourcePreview(context_.ide, context_.settings.Values().PreviewLines,
                                          row->Position, row->Line + 1, PreviewLine, context_.source));
    lblNote.Set(row->Note);
}

std::array<std::string, 3> TfrmFound::StatusTexts() const {
    return {"Found strings: " + std::to_string(sgStrings.RowCount()),
            "Deleted strings: " + std::to_string(sgDeleted.RowCount()),
            "Selected rows: " +
                std::to_string(showsDeleted_ ? sgDeleted.SelectedCount() : sgStrings.SelectedCount())};
}

// --- typed cells ---

bool TfrmFound::EnterCell(std::size_t row, FoundGrid::Column column, const std::string& text) {
    TgxFoundSourceString& found = sgStrings.At(row);
    if (column == FoundGrid::StringID) return EnterID(found, text);
    found.Replacement = text;
    return true;
}

bool TfrmFound::EnterID(TgxFoundSourceString& row, const std::string& id) {
    if (id == row.ID) return true;
    if (!IsUsableStringID(id, context_.flavour)) {
        ui_.MessageDlg("String ID shall not be empty and shall not contain quotes or control characters!",
                       MsgType::Error);
        return false;
    }
    IDsInUse inUse(context_.glotta);
    inUse.Add(sgStrings.Rows());
    inUse.Add(sgDeleted.Rows());
    if (inUse.Clashes(id, row.Value)) {
        ui_.MessageDlg("String ID \"" + id + "\" is already used for another string!", MsgType::Error);
        return false;
    }
    SetNewStrIDOnRow(row, id, context_.flavour);
    return true;
}

// --- the commands ---

void TfrmFound::DeleteRow() {
    const auto rows = sgStrings.TargetRows();
    const std::string question = rows.size() == 1
                                     ? "Delete selected row (" + sgStrings.At(rows.front()).ID + ")?"
                                     : "Delete selected rows?";
    if (!Ask(question)) return;
    const std::unordered_set<std::size_t> gone(rows.begin(), rows.end());
    MoveToDeleted([&](std::size_t row) { return gone.contains(row); });
}

void TfrmFound::StartID() {
    const std::string& prefix = context_.settings.Values().HCPrefix;
    const auto answer = ui_.InputBox(InputCaption, "Input start ID (" + prefix + "):", {});
    if (!answer) return;
    const std::string_view text = Trim(*answer);
    int start = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), start);
    if (error != std::errc() || end != text.data() + text.size()) {
        ui_.MessageDlg("For automatic generation start ID shall be integer!", MsgType::Error);
        return;
    }
    const bool all = sgStrings.SelectedCount() == 0;
    FoundRows rows, others;
    for (std::size_t row = 0; row < sgStrings.RowCount(); ++row)
        (all || sgStrings.IsSelected(row) ? rows : others).push_back(&sgStrings.At(row));
    IDsInUse inUse(context_.glotta);
    inUse.Add(others);
    inUse.Add(sgDeleted.Rows()); // they may be restored
    RenumberRows(rows, inUse, prefix, start, context_.flavour);
    sgStrings.Refresh();
    Changed();
}

// Excluded rows are gone for this run; the list of skipped words is what remembers them.
void TfrmFound::Exclude() {
    const FoundRows targets = Targets();
    std::vector<std::string> phrases;
    std::unordered_set<std::string_view> texts;
    for (const TgxFoundSourceString* row : targets)
        if (texts.insert(row->Value).second) phrases.push_back(row->Value);
    const std::string question =
        targets.size() == 1
            ? "Exclude all \"" + phrases.front() + "\" and add it to Skip Words for future skipping?"
            : "This will exclude phrases:\r\n" + JoinLines(phrases) +
                  "\r\nand add them to \"Skip Words\" option for future skipping! Continue?";
    if (!Ask(question)) return;
    TStringList words = context_.settings.Values().SkipWords;
    bool leftOut = false;
    for (const std::string& phrase : phrases) {
        // The option keeps one phrase per line: a text of several lines would come back as other phrases.
        const bool hasLineBreak = phrase.find_first_of("\r\n") != std::string::npos;
        leftOut = leftOut || hasLineBreak;
        if (!hasLineBreak && words.IndexOf(phrase) < 0) words.Add(phrase);
    }
    context_.settings.SetSkipWords(words);
    if (leftOut)
        ui_.MessageDlg(
            "Texts of several lines are not added to \"Skip Words\". They are excluded from this scan only.",
            MsgType::Information);
    const FoundRows gone =
        sgStrings.Take([&](std::size_t row) { return texts.contains(sgStrings.At(row).Value); });
    for (TgxFoundSourceString* row : gone)
        row->Deleted = true;
    Changed();
}

void TfrmFound::SwitchDeleted() {
    showsDeleted_ = !showsDeleted_;
    acSwitchDeleted.caption = showsDeleted_ ? "Found" : "Deleted";
    acSwitchDeleted.hint = showsDeleted_ ? "Shows found rows" : "Shows deleted rows";
    Changed();
}

void TfrmFound::RestoreDeletedRow() {
    const auto rows = sgDeleted.TargetRows();
    const std::unordered_set<std::size_t> chosen(rows.begin(), rows.end());
    const FoundRows restored = sgDeleted.Take([&](std::size_t row) { return chosen.contains(row); });
    for (TgxFoundSourceString* row : restored)
        row->Deleted = false;
    sgStrings.Add(restored);
    if (sgDeleted.RowCount() == 0)
        SwitchDeleted(); // the way back is disabled without deleted rows
    else
        Changed();
}

void TfrmFound::ViewSkipped() {
    if (skippedForm_) return ui_.BringToFront(*skippedForm_);
    skippedForm_ = std::make_unique<TfrmSkippedStrings>(context_.ide, context_.settings.Values().PreviewLines,
                                                        context_.skipped, context_.source,
                                                        &context_.registry);
    ui_.Show(*skippedForm_);
}

void TfrmFound::DeleteRowsContains() {
    const auto answer = ui_.InputBox(
        InputCaption, "Type string which is included in rows which should be deleted:", excludeRowsTypedStr_);
    if (!answer || answer->empty()) return;
    excludeRowsTypedStr_ = *answer;
    MoveToDeleted([&](std::size_t row) {
        const TgxFoundSourceString& found = sgStrings.At(row);
        return found.Value.find(*answer) != std::string::npos ||
               found.SourceText.find(*answer) != std::string::npos;
    });
}

void TfrmFound::UseMethod(std::string_view method) {
    SettingsValues settings = context_.settings.Values();
    settings.ReplaceMethod = method;
    ForTargets([&](TgxFoundSourceString& row) {
        RebuildReplacement(row, context_.component, context_.flavour, settings);
    });
}

// --- closing ---

bool TfrmFound::CloseQuery(Ui&, ModalResult result) {
    if (result == ModalResult::OK) {
        if (sgStrings.SelectedCount() > 0 &&
            !Ask("There are some row(s) selected. Continue?", MsgType::Warning))
            return false;
        if (!Ask("This will apply changes and modify source code. Continue?", MsgType::Warning)) return false;
    } else if (!Ask("This will close the Found Strings form! Continue?")) {
        return false;
    }
    SaveState();
    return true;
}

} // namespace glotta
