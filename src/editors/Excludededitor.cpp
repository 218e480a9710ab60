#include "editors/Excludededitor.h"

#include <algorithm>

namespace glotta {

namespace {

constexpr std::string_view LeftWidthValue = "LeftPanelWidth", PropertiesHeightValue = "PropertiesPanelHeight";

} // namespace

TfrmExcludeFromTranslation::TfrmExcludeFromTranslation(Ui& ui, RegistryStore& registry, TgxCustomLang& lang)
    : Model(ui, lang), ui_(ui), registry_(registry), defaults_(registry) {
    caption = "Exclude from Translations";
    for (const int node : Model.tvComponents.InOrder())
        componentTexts_.push_back(Model.tvComponents[node].text);
    DeclareComponentActions();
    DeclarePropertyActions();
    DeclareListActions();
    DeclareDefaultsActions();
    btOK = {"OK", {}, {}, [this] { Close(ui_, ModalResult::OK); }, {}, {}};
    btCancel = {"Cancel", {}, {}, [this] { Close(ui_, ModalResult::Cancel); }, {}, {}};
    btHelp = {"&Help", {}, {}, [this] { ShowHelp(); }, [this] { return bool(ShowHelp); }, {}};

    pcExcluded.OnChange = [this] { ShowPage(pcExcluded(), false); };
    cbComponents.OnChange = [this] {
        if (const int node = Model.tvComponents.Find(cbComponents()); node != TTree::None)
            Model.tvComponents.Select(node);
    };
    Model.tvComponents.OnChange = [this, refill = Model.tvComponents.OnChange] {
        refill();
        SelectionChanged();
    };
    Model.tvProperties.OnChange = [this] { UpdateActions(); };
    for (const ExclusionPage each : {ComponentsPage, PropertiesPage, CompPropertiesPage})
        Model.List(each).OnChange = [this] { UpdateActions(); };

    TRegIniFile store(registry_, std::string(Key));
    LeftPanelWidth.Set(store.ReadInteger({}, LeftWidthValue, LeftPanelWidth()));
    PropertiesPanelHeight.Set(store.ReadInteger({}, PropertiesHeightValue, PropertiesPanelHeight()));
    Placement.Set(TgxFormStorage(registry_, std::string(Key)).ReadPlacement());
    const auto keep = [this](TField<int>& field, std::string_view value) {
        field.OnChange = [this, &field, value] {
            TRegIniFile(registry_, std::string(Key)).WriteInteger({}, value, field());
        };
    };
    keep(LeftPanelWidth, LeftWidthValue);
    keep(PropertiesPanelHeight, PropertiesHeightValue);
    ShowPage(Model.page, false);
}

void TfrmExcludeFromTranslation::ShowPage(int page, bool onlyThisPage) {
    page = std::clamp(page, 0, int(PageCaptions.size()) - 1);
    Model.page = ExclusionPage(page);
    if (onlyThisPage)
        for (std::size_t tab = 0; tab < TabShown.size(); ++tab)
            TabShown[tab].Set(int(tab) == page);
    pcExcluded.Set(page);
    pnExcluded.Set(" " + std::string(PageCaptions[std::size_t(page)]) + " to Exclude:");
    UpdateActions();
}

void TfrmExcludeFromTranslation::SelectionChanged() {
    const int node = Model.tvComponents.Current();
    cbComponents.Set(node == TTree::None ? std::string() : Model.tvComponents[node].text);
    UpdateActions();
}

bool TfrmExcludeFromTranslation::Confirm(const std::string& question, MsgType type) {
    return ui_.MessageDlg(question, type, {ModalResult::Yes, ModalResult::No}) == ModalResult::Yes;
}

bool TfrmExcludeFromTranslation::CloseQuery(Ui& ui, ModalResult result) {
    if (!Model.modified) {
        if (result == ModalResult::OK) modalResult = ModalResult::Cancel;
    } else if (result == ModalResult::OK) {
        Model.WriteBack();
    } else {
        const ModalResult answer =
            ui.MessageDlg("Properties data was changed! Save changes?", MsgType::Warning,
                          {ModalResult::Yes, ModalResult::No, ModalResult::Cancel});
        if (answer == ModalResult::Yes) {
            Model.WriteBack();
            modalResult = ModalResult::OK;
        } else if (answer != ModalResult::No) {
            return false;
        }
    }
    if (Placement()) TgxFormStorage(registry_, std::string(Key)).WritePlacement(*Placement());
    return true;
}

bool DisplayExcludeDialog(Ui& ui, RegistryStore& registry, TgxCustomLang& lang, int pageIndex,
                          bool onlyThisPage) {
    TfrmExcludeFromTranslation form(ui, registry, lang);
    form.ShowPage(pageIndex, onlyThisPage);
    return ui.ShowModal(form) == ModalResult::OK;
}

} // namespace glotta
