// The dialog "Find Phrase": what to look for in the translations, and what to put in its place.
#pragma once
#include "platform/Form.h"
#include "storage/Phrase.h"

namespace glotta {

class RegistryStore;

class TfrmFind : public TForm {
public:
    enum class Command { Find, Replace };

    // Begins with what was asked for last.
    TfrmFind(Ui& ui, RegistryStore& registry, Command command);

    TField<std::string> edFindText, edReplace;
    TField<bool> ckbSensit, ckbWhole, ckbIdent, ckbDoPrompt{true};
    TAction btOK, btCancel;

    PhraseOptions Options() const { return {edFindText(), ckbSensit(), ckbWhole(), ckbIdent()}; }
    // What was asked for is kept for the next time.
    bool CloseQuery(Ui& ui, ModalResult result) override;

private:
    void Load();
    void Save();
    Ui& ui_;
    RegistryStore& registry_;
};

} // namespace glotta
