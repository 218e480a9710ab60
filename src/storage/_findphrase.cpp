#include "storage/_findphrase.h"

#include "platform/RegistryStore.h"

namespace glotta {

namespace {

const std::string BaseKey = "\\Software\\Quorlane\\TGlotta";

} // namespace

TfrmFind::TfrmFind(Ui& ui, RegistryStore& registry, Command command) : ui_(ui), registry_(registry) {
    caption = "Find Phrase";
    btOK = {"&OK", {}, {}, [this] { Close(ui_, ModalResult::OK); }, {}, {}};
    btCancel = {"&Cancel", {}, {}, [this] { Close(ui_, ModalResult::Cancel); }, {}, {}};
    edReplace.Show(command == Command::Replace);
    ckbDoPrompt.Show(command == Command::Replace);
    Load();
}

void TfrmFind::Load() {
    const TRegIniFile store(registry_, BaseKey);
    edFindText.Set(store.ReadString({}, "FindLastFindText", {}));
    edReplace.Set(store.ReadString({}, "FindLastReplaceText", {}));
    ckbSensit.Set(store.ReadBool({}, "FindCaseSensitive", ckbSensit()));
    ckbWhole.Set(store.ReadBool({}, "FindWholePhrase", ckbWhole()));
    ckbIdent.Set(store.ReadBool({}, "FindIdentifiers", ckbIdent()));
    ckbDoPrompt.Set(store.ReadBool({}, "FindDoPrompt", ckbDoPrompt()));
}

void TfrmFind::Save() {
    TRegIniFile store(registry_, BaseKey);
    store.WriteString({}, "FindLastFindText", edFindText());
    if (edReplace.Visible()) {
        store.WriteString({}, "FindLastReplaceText", edReplace());
        store.WriteBool({}, "FindDoPrompt", ckbDoPrompt());
    }
    store.WriteBool({}, "FindCaseSensitive", ckbSensit());
    store.WriteBool({}, "FindWholePhrase", ckbWhole());
    store.WriteBool({}, "FindIdentifiers", ckbIdent());
}

bool TfrmFind::CloseQuery(Ui&, ModalResult result) {
    if (result == ModalResult::OK || result == ModalResult::Yes) Save();
    return true;
}

} // namespace glotta
