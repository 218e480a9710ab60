#include "translation/TransEditor.h"

#include "translation/ExtendedTranslations.h"

#include <algorithm>
#include <map>

namespace glotta {

namespace {

const std::string InputCaption = "Translation Editor";

} // namespace

TfrmTransEditor::TfrmTransEditor(Ui& ui, TgxCustomLang& component, const TransEditor& hooks)
    : before_(Collect(component)), texts_(component), ui_(ui), component_(component), hooks_(hooks) {
    caption = "Translation Editor - " + component.Name();
    Column.Set(std::min(2, texts_.Languages()));
    DeclareActions();
    lbKinds.OnChange = [this] {
        if (lbKinds.Row() >= 0 && lbKinds.At(std::size_t(lbKinds.Row())) != sgTexts.Kind()) ListTexts();
    };
    sgTexts.OnChange = [this] { ShowCell(); };
    sgTexts.OnEnter = [this](std::size_t record, int column, const std::string& text) {
        return EnterText(record, column, text);
    };
    Column.OnChange = [this] {
        if (ckbUntranslated())
            ListTexts();
        else
            ShowCell();
    };
    edFilter.OnChange = ckbUntranslated.OnChange = [this] { ListTexts(); };
    edFind.OnChange = [this] { Find(1, true); };
    memText.OnChange = [this] { TypeText(); };
    if (lbKinds.RowCount() > 0) {
        lbKinds.SelectOnly(0);
        ListTexts();
    } else {
        ShowCell();
    }
}

void TfrmTransEditor::DeclareActions() {
    const auto hasTexts = [this] { return sgTexts.RowCount() > 0; };
    const auto canFind = [this] { return !edFind().empty() && sgTexts.RowCount() > 0; };
    const auto isMissing = [this] {
        for (std::size_t row = 0; row < lbKinds.RowCount(); ++row)
            if (lbKinds.CellText(row, KindsList::Missing) != "0") return true;
        return false;
    };
    acFindNext = {
        "Find &Next", "F3", "Goes to the next text that holds what is typed", [this] { Find(1, false); },
        canFind,      {}};
    acFindPrevious = {"Find &Previous",
                      "Shift+F3",
                      "Goes back to the text before that holds what is typed",
                      [this] { Find(-1, false); },
                      canFind,
                      {}};
    acNextUntranslated = {"Next &Untranslated",
                          "F8",
                          "Goes to the next text without translation",
                          [this] { GoToUntranslated(1); },
                          isMissing,
                          {}};
    acPreviousUntranslated = {
        "Pre&vious Untranslated",         "Shift+F8", "Goes back to the text before without translation",
        [this] { GoToUntranslated(-1); }, isMissing,  {}};
    acCopyFirst = {"&Copy First Language",
                   "Ctrl+D",
                   "Copies the text of the first language to the current one",
                   [this] { CopyFirst(); },
                   [=, this] { return hasTexts() && Language() > 1 && !Targets().empty(); },
                   {}};
    acRenameID = {"&Rename Identifier...",
                  "Ctrl+R",
                  "Gives the string another identifier",
                  [this] { RenameID(); },
                  [this] { return HasCurrent() && sgTexts.Kind() == stStrings; },
                  {}};
    acNavigate = {"&Show in Source",
                  "Ctrl+Return",
                  "Shows where the unit uses the identifier",
                  [this] { Navigate(); },
                  [this] { return hooks_.NavigateToSource && HasCurrent() && sgTexts.Kind() == stStrings; },
                  {}};
    btAbout = {
        "&About...", {}, {}, [this] { hooks_.ShowAboutBox(); }, [this] { return bool(hooks_.ShowAboutBox); },
        {}};
    btOK = {"OK", {}, {}, [this] { Close(ui_, ModalResult::OK); }, {}, {}};
    btCancel = {"Cancel", {}, {}, [this] { Close(ui_, ModalResult::Cancel); }, {}, {}};
}

// --- what is shown ---

int TfrmTransEditor::Language() const {
    return Column() >= 1 && Column() <= texts_.Languages() ? Column() : 0;
}

std::vector<std::size_t> TfrmTransEditor::Targets() const {
    std::vector<std::size_t> records;
    for (const std::size_t row : sgTexts.TargetRows())
        records.push_back(sgTexts.Record(row));
    return records;
}

// The current text stays current while it is listed.
void TfrmTransEditor::ListTexts() {
    if (lbKinds.Row() < 0) return;
    const TStringsType kind = lbKinds.At(std::size_t(lbKinds.Row()));
    const bool sameKind = kind == sgTexts.Kind() && HasCurrent();
    const std::size_t record = sameKind ? CurrentRecord() : 0;
    sgTexts.List(kind, edFilter(), ckbUntranslated() ? Language() : 0);
    const int row = sameKind ? sgTexts.RowOf(record) : -1;
    sgTexts.SelectOnly(row >= 0 ? row : sgTexts.RowCount() > 0 ? 0 : -1);
}

void TfrmTransEditor::ShowCell() {
    const int language = Language();
    const bool isText = HasCurrent() && language > 0;
    const auto text = [&](int column) {
        return HasCurrent() ? texts_.Field(sgTexts.Kind(), CurrentRecord(), column) : std::string();
    };
    lblFirst.Set(texts_.LanguageName(1) + ":");
    memFirst.Set(text(1));
    lblText.Set(isText ? texts_.LanguageName(language) + ":" : "Translation:");
    memText.Set(isText ? text(language) : std::string());
    memText.Enable(isText);
    if (OnView) OnView();
}

std::array<std::string, 2> TfrmTransEditor::StatusTexts() const {
    const std::string all = lbKinds.Row() < 0 ? "0" : std::to_string(texts_.Count(sgTexts.Kind()));
    std::string missing;
    if (Language() > 1) {
        std::size_t count = 0;
        for (std::size_t row = 0; row < lbKinds.RowCount(); ++row)
            count += texts_.Untranslated(lbKinds.At(row), Language());
        missing = texts_.LanguageName(Language()) + ": " + std::to_string(count) + " untranslated";
    }
    return {"Texts: " + std::to_string(sgTexts.RowCount()) + " of " + all, missing};
}

void TfrmTransEditor::ShowPlace(const TransEditorPlace& place) {
    lbKinds.SelectOnly(lbKinds.Listed(place.kind));
    if (place.index < 0) return;
    if (const int row = sgTexts.RowOf(std::size_t(place.index)); row >= 0) sgTexts.SelectOnly(row);
}

// --- what is typed ---

void TfrmTransEditor::TextsChanged() {
    sgTexts.Refresh();
    lbKinds.Refresh();
    if (OnView) OnView();
}

bool TfrmTransEditor::EnterText(std::size_t record, int column, const std::string& text) {
    if (column == 0 && !EnterID(record, text)) return false;
    if (column > 0) texts_.SetText(sgTexts.Kind(), record, column, text);
    TextsChanged();
    ShowCell();
    return true;
}

// The memo gives CR LF; a text that had bare line feeds, or whose first language has, keeps to them.
void TfrmTransEditor::TypeText() {
    if (!HasCurrent() || Language() == 0) return;
    const auto hasBare = [](const std::string& text) {
        return text.find('\n') != std::string::npos && text.find('\r') == std::string::npos;
    };
    const TStringsType kind = sgTexts.Kind();
    const std::size_t record = CurrentRecord();
    const bool bare =
        hasBare(texts_.Field(kind, record, Language())) || hasBare(texts_.Field(kind, record, 1));
    texts_.SetText(kind, record, Language(), bare ? ReplaceStr(memText(), "\r\n", "\n") : memText());
    TextsChanged();
}

bool TfrmTransEditor::EnterID(std::size_t record, const std::string& id) {
    const std::string before = texts_.ID(stStrings, record);
    if (id == before) return true;
    if (!IsUsableID(id)) {
        ui_.MessageDlg("An identifier shall not be empty and shall not contain quotes or control characters!",
                       MsgType::Error);
        return false;
    }
    if (!SameText(id, before) && texts_.HasID(id)) {
        ui_.MessageDlg("Identifier \"" + id + "\" is already used for another string!", MsgType::Error);
        return false;
    }
    if (!hooks_.OnChangeStrID &&
        ui_.MessageDlg("Source code that uses \"" + before + "\" is not changed. Rename the identifier?",
                       MsgType::Warning, {ModalResult::Yes, ModalResult::No}) != ModalResult::Yes)
        return false;
    texts_.Rename(record, id);
    renamed_.push_back({record, before, id});
    return true;
}

// --- commands ---

// Cells are searched row by row, from the one behind the current cell, and around the end.
void TfrmTransEditor::Find(int step, bool fromHere) {
    const int rows = int(sgTexts.RowCount()), columns = int(sgTexts.ColumnCount());
    if (rows == 0 || edFind().empty()) return;
    const std::string upper = UpperCase(edFind());
    const long long cells = 1LL * rows * columns;
    const long long here = 1LL * std::max(sgTexts.Row(), 0) * columns + std::clamp(Column(), 0, columns - 1);
    for (long long i = fromHere ? 0 : 1; i <= cells;) {
        const long long cell = (((here + i * step) % cells) + cells) % cells;
        const auto row = std::size_t(cell / columns);
        const int column = int(cell % columns);
        const std::size_t record = sgTexts.Record(row);
        if (!texts_.Contains(sgTexts.Kind(), record, upper)) { // none of its cells
            i += step > 0 ? columns - column : column + 1;
            continue;
        }
        if (UpperCase(texts_.Field(sgTexts.Kind(), record, column)).find(upper) != std::string::npos) {
            Column.Set(column);
            sgTexts.SelectOnly(int(row));
            return;
        }
        ++i;
    }
    if (!fromHere) ui_.MessageDlg("\"" + edFind() + "\" was not found.", MsgType::Information);
}

// In the rows of the listed kind from the current one on, or in all of them.
bool TfrmTransEditor::GoToUntranslatedIn(int language, int step, bool wholeKind) {
    const int rows = int(sgTexts.RowCount());
    const int start = !wholeKind ? sgTexts.Row() + step : step > 0 ? 0 : rows - 1;
    for (int row = start; row >= 0 && row < rows; row += step)
        if (texts_.IsUntranslated(sgTexts.Kind(), sgTexts.Record(std::size_t(row)), language)) {
            Column.Set(language);
            sgTexts.SelectOnly(row);
            return true;
        }
    return false;
}

// On through this kind, the other kinds and this one again; then in the next language. What a filter hides is
// passed.
void TfrmTransEditor::GoToUntranslated(int step) {
    const int languages = texts_.Languages(), kinds = int(lbKinds.RowCount());
    const int firstLanguage = std::max(Language(), 2), firstKind = lbKinds.Row();
    for (int i = 0; i < languages - 1; ++i) {
        const int language = 2 + (firstLanguage - 2 + i) % (languages - 1);
        if (i == 0 && GoToUntranslatedIn(language, step, false)) return;
        for (int k = i == 0 ? 1 : 0; k <= kinds; ++k) {
            const int kind = (((firstKind + k * step) % kinds) + kinds) % kinds;
            if (texts_.Untranslated(lbKinds.At(std::size_t(kind)), language) == 0) continue;
            lbKinds.SelectOnly(kind);
            if (GoToUntranslatedIn(language, step, true)) return;
        }
    }
    lbKinds.SelectOnly(firstKind);
    ui_.MessageDlg("The texts without translation are hidden by the filter.", MsgType::Information);
}

void TfrmTransEditor::CopyFirst() {
    const int language = Language();
    const TStringsType kind = sgTexts.Kind();
    const std::vector<std::size_t> records = Targets();
    const auto there = std::count_if(records.begin(), records.end(), [&](std::size_t record) {
        return !texts_.Field(kind, record, language).empty();
    });
    bool replace = false;
    if (there > 0) {
        const ModalResult answer =
            ui_.MessageDlg(std::to_string(there) + " of the texts are translated already. Replace them, too?",
                           MsgType::Confirmation, {ModalResult::Yes, ModalResult::No, ModalResult::Cancel});
        if (answer == ModalResult::Cancel) return;
        replace = answer == ModalResult::Yes;
    }
    for (const std::size_t record : records)
        if (replace || texts_.Field(kind, record, language).empty())
            texts_.SetText(kind, record, language, texts_.Field(kind, record, 1));
    TextsChanged();
    ShowCell();
}

void TfrmTransEditor::RenameID() {
    const std::size_t record = CurrentRecord();
    if (const auto id = ui_.InputBox(InputCaption, "New identifier:", texts_.ID(stStrings, record)))
        if (EnterID(record, *id)) TextsChanged();
}

void TfrmTransEditor::Navigate() {
    const std::string id = texts_.ID(stStrings, CurrentRecord());
    if (!hooks_.NavigateToSource(id, true))
        ui_.MessageDlg("\"" + id + "\" was not found in the source.", MsgType::Information);
}

// --- closing ---

TfrmTransEditor::Lists TfrmTransEditor::Collect(TgxCustomLang& component) {
    Lists lists;
    for (int kind = 0; kind < StringsTypeCount; ++kind)
        lists[std::size_t(kind)] = component.Strings(TStringsType(kind)).Items();
    component.UpdateTranslations();
    return lists;
}

void TfrmTransEditor::TakeBack() {
    for (int kind = 0; kind < StringsTypeCount; ++kind)
        if (component_.Strings(TStringsType(kind)).Items() != before_[std::size_t(kind)])
            component_.SetStrings(TStringsType(kind), before_[std::size_t(kind)]);
}

// A string that the source goes on calling as before keeps that identifier, unless another one took it.
void TfrmTransEditor::RenameInSource() {
    std::map<std::size_t, std::string> inSource; // by record
    for (const auto& [record, before, id] : renamed_) {
        std::string& known = inSource.try_emplace(record, before).first->second;
        if (known == id) continue;
        std::string used = id;
        hooks_.OnChangeStrID(component_.Tree().Root().Name(), known, used);
        known = used;
    }
    for (const auto& [record, id] : inSource) {
        const std::string now = texts_.ID(stStrings, record);
        if (now == id) continue;
        if (SameText(now, id) || !texts_.HasID(id))
            texts_.Rename(record, id);
        else
            ui_.MessageDlg("Identifier \"" + id + "\" is already used for another string!", MsgType::Error);
    }
}

void TfrmTransEditor::Write() {
    if (hooks_.OnChangeStrID) RenameInSource();
    texts_.WriteTo(component_);
    for (int kind = 0; kind < StringsTypeCount; ++kind)
        changed_ = changed_ || component_.Strings(TStringsType(kind)).Items() != before_[std::size_t(kind)];
}

bool TfrmTransEditor::CloseQuery(Ui& ui, ModalResult result) {
    if (result != ModalResult::OK && texts_.IsChanged())
        result = ui.MessageDlg("The translations were changed. Keep the changes?", MsgType::Confirmation,
                               {ModalResult::Yes, ModalResult::No, ModalResult::Cancel});
    else if (result != ModalResult::OK)
        result = ModalResult::No;
    if (result == ModalResult::Cancel) return false;
    if (result == ModalResult::No)
        TakeBack();
    else
        Write();
    return true;
}

bool TransEditorDialog::TransEditorDlg(TgxCustomLang& component,
                                       const std::optional<TransEditorPlace>& place) {
    if (place && place->extended != 0) {
        TfrmExtendedTranslations dialog(ui_, component, place->extended);
        ui_.ShowModal(dialog);
        return dialog.Changed();
    }
    TfrmTransEditor dialog(ui_, component, *this);
    if (place) dialog.ShowPlace(*place);
    ui_.ShowModal(dialog);
    return dialog.Changed();
}

} // namespace glotta
