#include "settings/_expopt.h"

#include "platform/Error.h"
#include "platform/IntText.h"
#include "platform/Text.h"

#include <algorithm>
#include <optional>

namespace glotta {

namespace {

constexpr const char* InputTitle = "TGlotta Expert default languages";
constexpr const char* InputPrompt = "Enter new language name:";
constexpr int DefaultPreviewLines = 5;

int NumberIn(const TField<std::string>& edit) {
    if (const auto number = StrToInt(edit())) return *number;
    throw Error("'" + edit() + "' is not a valid integer value");
}

TStringList LinesIn(const TField<std::string>& memo) {
    TStringList lines;
    lines.SetText(memo());
    return lines;
}

struct Bounds {
    int low;
    std::optional<int> high;
};

// A step goes from what the edit shows, or from 0 when that is no number, to the nearest allowed value.
TAction StepButton(TField<std::string>& edit, int step, Bounds bounds) {
    TAction action;
    action.execute = [&edit, step, bounds] {
        const long long wanted = (long long)StrToInt(edit()).value_or(0) + step;
        const int high = bounds.high.value_or(std::numeric_limits<int>::max());
        edit.Set(std::to_string(std::clamp<long long>(wanted, bounds.low, high)));
    };
    return action;
}

} // namespace

int TComboBox::ItemIndex() const {
    const auto found = std::find(Items.begin(), Items.end(), (*this)());
    return found == Items.end() ? -1 : int(found - Items.begin());
}

TfrmOptions::TfrmOptions(Ui& ui, std::vector<std::string> replaceMethods,
                         std::vector<std::string> componentNames)
    : ui_(ui) {
    caption = "Options";
    cbMenuItems.Items = {"FileMenu", "EditMenu",      "SearchMenu", "ViewsMenu", "ProjectMenu",
                         "RunMenu",  "ComponentMenu", "ToolsMenu",  "HelpMenu"};
    cbReplaceMethod.Items = std::move(replaceMethods);
    cbDefTGlotta.Items = std::move(componentNames);
    memSkipWords.OnChange = [this] { memSkipWordsChange(); };
    DeclareSteps();
    DeclareLanguages();
    btHelp = {"&Help", {}, {}, [this] { ShowHelp(); }, [this] { return bool(ShowHelp); }, {}};
    btOK = {"OK", {}, {}, [this] { Close(ui_, ModalResult::OK); }, {}, {}};
    btCancel = {"Cancel", {}, {}, [this] { Close(ui_, ModalResult::Cancel); }, {}, {}};
}

void TfrmOptions::DeclareSteps() {
    const auto pair = [](TAction& up, TAction& down, TField<std::string>& edit, Bounds bounds) {
        up = StepButton(edit, 1, bounds);
        down = StepButton(edit, -1, bounds);
    };
    pair(sbIgnorableUp, sbIgnorableDown, edIgnorableLength, {0, 255});
    pair(sbNLangUp, sbNLangDown, edNLang, {1, 255});
    pair(sbCommentsUp, sbCommentsDown, edCommentsLength, {0, 255});
    pair(sbPreviewUp, sbPreviewDown, edPreviewLines, {DefaultPreviewLines, {}});
}

void TfrmOptions::DeclareLanguages() {
    const auto selected = [this] { return lbLangNames.SelectedCount() > 0; };
    btnRename = {"&Rename", {}, {}, [this] { RenameLanguage(); }, selected, {}};
    btnAdd = {"&Add", {}, {}, [this] { AddLanguage(); }, {}, {}};
    btnDelete = {"&Delete", {}, {}, [this] { DeleteLanguages(); }, selected, {}};
    btnMoveUp = {"Move &Up", {}, {}, [this] { MoveLanguage(-1); }, selected, {}};
    btnMoveDown = {"Move Do&wn", {}, {}, [this] { MoveLanguage(1); }, selected, {}};
}

void TfrmOptions::SwitchPage() {
    pcOptions.Set((pcOptions() + 1) % int(PageCaptions.size()));
}

void TfrmOptions::memSkipWordsChange() {
    const bool usable = !Trim(memSkipWords()).empty();
    if (!usable) ckbUseREtoSkip.Set(false);
    ckbUseREtoSkip.Enable(usable);
}

// --- languages ---

void TfrmOptions::RenameLanguage() {
    const std::size_t row = lbLangNames.SelectedRows().front();
    if (const auto name = ui_.InputBox(InputTitle, InputPrompt, lbLangNames.Items()[row]);
        name && !name->empty())
        lbLangNames.Put(row, *name);
}

void TfrmOptions::AddLanguage() {
    if (const auto name = ui_.InputBox(InputTitle, InputPrompt, {}); name && !name->empty())
        lbLangNames.Add(*name);
}

void TfrmOptions::DeleteLanguages() {
    if (ui_.MessageDlg("Delete selected language name(s)?", MsgType::Confirmation,
                       {ModalResult::Yes, ModalResult::No}) == ModalResult::Yes)
        lbLangNames.DeleteSelected();
}

// Up moves the first selected name, down the last one.
void TfrmOptions::MoveLanguage(int step) {
    const auto rows = lbLangNames.SelectedRows();
    const std::size_t row = step < 0 ? rows.front() : rows.back();
    const std::size_t target = row + std::size_t(step);
    if (target < lbLangNames.RowCount()) lbLangNames.Swap(row, target);
}

// --- settings ---

void TfrmOptions::Fill(SettingsValues values) {
    if (values.DefaultComp.empty()) values.DefaultComp = "TGlotta";
    cbMenuItems.Set(values.MenuSection);
    hkInMenu.Set(values.ShortCut);
    cbDefTGlotta.Set(values.DefaultComp);
    cbOpenAll.Set(values.OpenAllForms);
    lbLangNames.SetItems(SplitLines(values.DefaultLangNames));
    edNLang.Set(std::to_string(values.NumLang));
    edIgnorableLength.Set(std::to_string(values.IgnorableLength));
    edCommentsLength.Set(std::to_string(values.CommentsLength));
    edPreviewLines.Set(std::to_string(values.PreviewLines));
    cbReplaceMethod.Set(values.ReplaceMethod);
    if (cbReplaceMethod.ItemIndex() < 0 && !cbReplaceMethod.Items.empty())
        cbReplaceMethod.Set(cbReplaceMethod.Items.front());
    ckbAddFormName.Set(values.AddFormName);
    ckbNoCommentsAtAll.Set(values.NoCommentsInSources);
    edHCPfx.Set(values.HCPrefix);
    edConstPfx.Set(values.CnstPrefix);
    rgCnstPfx.Set(values.CnstPermanent != 0 ? 1 : 0);
    ckbEmptyConsts.Set(values.EmptyConstsValues);
    edExcludeChars.Set(values.ExcludeChars);
    memSkipLines.Set(values.SkipLines.Text());
    memSkipWords.Set(values.SkipWords.Text());
    ckbUseREtoSkip.Set(values.UseRegExpForSkip);
    memSkipWordsChange();
}

void TfrmOptions::Apply(ExpertSettings& settings) const {
    settings.SetShortCut(hkInMenu());
    settings.SetNumLang(NumberIn(edNLang));
    settings.SetMenuSection(cbMenuItems());
    settings.SetIgnorableLength(NumberIn(edIgnorableLength));
    settings.SetDefaultComp(cbDefTGlotta());
    settings.SetOpenAllForms(cbOpenAll());
    settings.SetHCPrefix(edHCPfx());
    settings.SetCnstPrefix(edConstPfx());
    settings.SetCnstPermanent(rgCnstPfx());
    settings.SetAddFormName(ckbAddFormName());
    settings.SetReplaceMethod(cbReplaceMethod());
    settings.SetDefaultLangNames(TStringList(lbLangNames.Items()).Text());
    settings.SetCommentsLength(NumberIn(edCommentsLength));
    settings.SetEmptyConstsValues(ckbEmptyConsts());
    settings.SetExcludeChars(edExcludeChars());
    settings.SetSkipLines(LinesIn(memSkipLines));
    settings.SetSkipWords(LinesIn(memSkipWords));
    settings.SetUseRegExpForSkip(ckbUseREtoSkip.Enabled() && ckbUseREtoSkip());
    settings.SetPreviewLines(StrToInt(edPreviewLines()).value_or(DefaultPreviewLines));
    settings.SetNoCommentsInSources(ckbNoCommentsAtAll());
}

} // namespace glotta
