#include "mainwindow/MainWindow.h"

#include "mainwindow/CommandRunner.h"
#include "platform/Automation.h"
#include "platform/Error.h"
#include "platform/Files.h"
#include "platform/IntText.h"
#include "platform/RegistryStore.h"
#include "platform/Text.h"
#include "runtime/TransEditor.h"
#include "settings/ExpertSettings.h"
#include "storage/FoundPhrases.h"
#include "storage/_badidsform.h"

#include <algorithm>

namespace glotta {

namespace {

constexpr const char* DictionaryServer = "dicmngr.TGlottaDicMngr";
const std::vector<int> DesignedWidths = {130, 130, 260, 80, 110};

// The file with another extension.
std::string FormFileOf(const std::string& unit, const char* extension) {
    return PathText(PathFromText(unit).replace_extension(extension));
}

} // namespace

TfrmGlotta::TfrmGlotta(MainWindowContext context)
    : lvFormNames(context.ide.Forms()), lvExternalFiles(context.externalFiles), ColumnWidths(DesignedWidths),
      context_(std::move(context)), translation_(context_.ide, context_.settings.Values()) {
    caption = "TGlotta Expert (VCL Edition)";
    translation_.UpdateStatusBar = [this] {
        lvFormNames.Refresh();
        UpdateStatusBar();
    };
    if (TransEditor* editor = context_.transEditor)
        translation_.TransEditorDlg = [editor](TgxCustomLang& component) {
            return editor->TransEditorDlg(component, {});
        };
    for (FormsGrid* list : {&lvFormNames, &lvExternalFiles})
        list->OnChange = [this, list] {
            list->SelectionToList();
            SelectionChanged();
        };
    lvFormNames.OnColumnClick = [this](std::size_t column) {
        RunCommand(UiPort(), [&] { lvFormNamesColumnClick(column); });
    };
    pcForms.OnChange = [this] { CheckEnableActions(); };
    ExternalFiles.loading = true; // what an earlier window listed
    for (const FormsListItem& item : lvExternalFiles.List().items)
        ExternalFiles.AddFile(item.fileName);
    ExternalFiles.loading = false;
    BuildMenus();
    LoadState();
    try {
        context_.automation.ClassIdOf(DictionaryServer);
    } catch (const Error&) { // not registered: the command tells when it is chosen
    }
    CheckEnableActions();
}

TfrmGlotta::~TfrmGlotta() {
    destroying_ = true;
    FreeServer();
}

// --- filling ---

void TfrmGlotta::FillFromProject(IOTAProject& project) {
    std::vector<std::string> errors;
    FormsList& forms = lvFormNames.List();
    forms = ListProjectForms(project, errors);
    ExternalFiles.SetProjectName(project.FileName());
    unitCount_ = project.Modules().size();
    for (FormsListItem& item : forms.items)
        ReadOpenForm(item);
    lvFormNames.Replaced();
    for (const std::string& error : errors)
        for (const FormsListItem& item : forms.items)
            if (error.starts_with(FormFileOf(item.fileName, "."))) lvFormNames.SetNote(item.fileName, error);
}

void TfrmGlotta::ClearProject() {
    lvFormNames.List().items.clear();
    lvFormNames.Replaced();
    unitCount_ = 0;
    UpdateStatusBar();
}

bool TfrmGlotta::ReadOpenForm(FormsListItem& item) {
    IOTAModule* module = context_.ide.Ide().modules.FindModule(item.fileName);
    IOTAFormEditor* editor = IdeServices::GetFormEditorFromModule(module);
    if (!editor) return false;
    item.formName = editor->Designer().Root().Name();
    item.languages = "0";
    item.glotta.clear();
    item.dispatcher = false;
    for (TComponent* component : editor->Designer().Root().Components()) {
        const auto* glotta = dynamic_cast<TgxCustomLang*>(component);
        item.dispatcher = item.dispatcher || dynamic_cast<TGlottaDispatcher*>(component);
        if (!glotta || !item.glotta.empty()) continue;
        item.languages = std::to_string(glotta->NumberOfLanguages());
        item.glotta = glotta->ClassName();
    }
    item.imageIndex = item.glotta.empty() ? 0 : 1;
    return true;
}

void TfrmGlotta::UpdateEntries(const std::string& fileName) {
    for (FormsGrid* list : {&lvFormNames, &lvExternalFiles})
        for (FormsListItem& item : list->List().items)
            if (SameText(item.fileName, fileName) && ReadOpenForm(item)) list->Refresh();
    UpdateStatusBar();
}

void TfrmGlotta::OpenAllForms() {
    Progress progress(UiPort(), "Opening forms...");
    IOTASourceEditor* const inFront = context_.ide.GetCurrentSourceEditor();
    for (FormsListItem& item : lvFormNames.List().items) {
        if (progress.Cancelled()) break;
        if (!context_.ide.OpenFile(item.fileName, false)) continue;
        IOTAFormEditor* editor =
            IdeServices::GetFormEditorFromModule(context_.ide.Ide().modules.FindModule(item.fileName));
        if (!editor) continue;
        for (TComponent* component : editor->Designer().Root().Components())
            if (SameText(component->ClassName(), componentClass_)) {
                if (const auto* glotta = dynamic_cast<TgxCustomLang*>(component))
                    item.languages = std::to_string(glotta->NumberOfLanguages());
                item.imageIndex = 1;
                break;
            }
    }
    if (inFront && context_.ide.GetCurrentSourceEditor() != inFront) inFront->Show();
}

void TfrmGlotta::Open() {
    if (context_.settings.Values().OpenAllForms) OpenAllForms();
    if (Visible()) {
        UiPort().BringToFront(*this);
    } else {
        FormShow();
        Visible.Set(true);
        UiPort().Show(*this);
        if (Dockable() && CanDock()) context_.DockWindow(true);
    }
    lvFormNamesColumnClick(std::size_t(std::max(context_.settings.Values().SortedColumn, 0)));
    SelectCurrentEditor();
    ShowFilled();
}

void TfrmGlotta::ShowFilled() {
    for (FormsGrid* list : {&lvFormNames, &lvExternalFiles})
        list->SelectionFromList();
    UpdateStatusBar();
    CheckEnableActions();
}

void TfrmGlotta::SelectCurrentEditor() {
    IOTASourceEditor* editor = context_.ide.GetCurrentSourceEditor();
    if (!editor) return;
    const std::string file = editor->FileName();
    const auto& items = lvFormNames.List().items;
    const auto isCurrent = [&](const FormsListItem& item) {
        return SameText(item.fileName, file) || SameText(FormFileOf(item.fileName, ".dfm"), file) ||
               SameText(FormFileOf(item.fileName, ".xfm"), file);
    };
    const auto found = std::find_if(items.begin(), items.end(), isCurrent);
    if (found != items.end()) lvFormNames.SelectOnly(int(found - items.begin()));
}

void TfrmGlotta::FillProjectForms(std::vector<std::string>& list) const {
    list.clear();
    for (std::size_t row = 0; row < lvFormNames.RowCount(); ++row)
        list.push_back(lvFormNames.CellText(row, FormsGrid::FormName));
}

// --- state ---

void TfrmGlotta::UpdateStatusBar() {
    if (destroying_) return;
    const auto& items = lvFormNames.List().items;
    const auto translated = std::count_if(items.begin(), items.end(),
                                          [](const FormsListItem& item) { return !item.glotta.empty(); });
    const std::string count = std::to_string(items.size());
    StatusBar[0].Set("Forms count: " + count);
    StatusBar[1].Set("Units count: " + std::to_string(unitCount_));
    StatusBar[2].Set("Forms translated: " + std::to_string(translated) + " of " + count);
}

void TfrmGlotta::SelectionChanged() {
    if (const auto rows = lvFormNames.SelectedRows(); !rows.empty()) {
        const bool currentToo =
            lvFormNames.Row() >= 0 && lvFormNames.IsSelected(std::size_t(lvFormNames.Row()));
        componentClass_ = lvFormNames.CellText(currentToo ? std::size_t(lvFormNames.Row()) : rows.front(),
                                               FormsGrid::Glotta);
    }
    CheckEnableActions();
}

void TfrmGlotta::lvFormNamesColumnClick(std::size_t column) {
    ExpertSettings& settings = context_.settings;
    settings.SetSortOrder(settings.Values().SortOrder < 0 ? 1 : -1);
    settings.SetSortedColumn(int(column));
    lvFormNames.SortBy(int(column), settings.Values().SortOrder);
}

void TfrmGlotta::lvFormNamesDblClick(std::size_t row) {
    Run([&] {
        if (row < ActiveList().RowCount()) translation_.InsertTGlotta(ActiveList().List().items[row]);
    });
}

void TfrmGlotta::FormShow() {
    TStringList texts;
    texts.SetCommaText(context_.settings.Values().ColumnWidths);
    std::vector<int> widths = ColumnWidths();
    for (std::size_t i = 0; i < widths.size() && i < texts.Count(); ++i)
        widths[i] = StrToInt(texts[i]).value_or(widths[i]);
    ColumnWidths.Set(std::move(widths));
}

// Closing is a way out that nothing forbids; what the window holds goes with it.
bool TfrmGlotta::CloseQuery(Ui& ui, ModalResult) {
    RunCommand(ui, [this] { SaveState(); });
    FreeServer();
    if (context_.ProjectClosed) RunCommand(ui, context_.ProjectClosed);
    Visible.Set(false);
    if (context_.WindowClosed) context_.WindowClosed();
    return true;
}

void TfrmGlotta::LoadState() {
    const TRegIniFile store(context_.registry, std::string(PlacementKey));
    StayOnTop.Set(store.ReadBool({}, "StayOnTop", false));
    Dockable.Set(store.ReadBool({}, "Dockable", false));
    Placement.Set(TgxFormStorage(context_.registry, std::string(PlacementKey)).ReadPlacement());
}

void TfrmGlotta::SaveState() {
    TStringList widths;
    for (const int width : ColumnWidths())
        widths.Add(std::to_string(width));
    context_.settings.SetColumnWidths(widths.CommaText());
    TRegIniFile store(context_.registry, std::string(PlacementKey));
    store.WriteBool({}, "StayOnTop", StayOnTop());
    store.WriteBool({}, "Dockable", Dockable());
    if (Placement())
        TgxFormStorage(context_.registry, std::string(PlacementKey)).WritePlacement(*Placement());
}

// --- dictionary manager ---

void TfrmGlotta::CreateServer() {
    if (!server_) server_ = context_.automation.CreateObject(DictionaryServer);
}

void TfrmGlotta::FreeServer() {
    server_.reset();
}

} // namespace glotta
