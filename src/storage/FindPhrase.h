// Finding and replacing a phrase in the translations of the selected forms.
#pragma once
#include "storage/FoundPhrases.h"
#include "storage/ReplConfirm.h"
#include "translation/FormTranslation.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace glotta {

// What became of an identifier.
struct PhraseIdentifier {
    std::string formName, before, id;
    TStringsType kind;
    std::string refusal; // why it stayed as it was; empty when it was replaced
};

struct PhraseReplacement {
    PhraseOptions find;
    std::string text;
    bool prompt = false;
};

struct PhraseReplacements {
    std::size_t texts = 0; // replaced, identifiers included
    std::vector<PhraseIdentifier> identifiers;
};

class FindPhrase {
public:
    FindPhrase(IdeServices& ide, FormTranslation& translation) : ide_(ide), translation_(translation) {}

    // The person may stop either between two forms. A form that was closed is closed again; one that was
    // changed is saved before.
    std::vector<FoundPhrase> Find(const PhraseOptions& options);
    PhraseReplacements Replace(const PhraseReplacement& replacement);

    // The commands, from dialog to result. The window is made when it is needed.
    void Findword1Click(RegistryStore& registry, std::unique_ptr<TfrmFoundPhrases>& window);
    void Replacephrase1Click(RegistryStore& registry);

    // A string's identifier was replaced: its calls in the source are to follow. It gives the identifier to
    // use. Without it the source stays as it is, and the command says so.
    std::function<void(const std::string& formName, const std::string& before, std::string& id)>
        OnChangeStrID;

private:
    struct Work {
        bool changed = false, goOn = true;
    };
    void ForEachForm(const char* doing,
                     const std::function<Work(const FormsListItem&, TgxCustomLang&)>& work);
    void RenameInSource(TgxCustomLang& component, PhraseReplacements& done, std::size_t first);
    void Tell(const PhraseReplacements& done);
    IdeServices& ide_;
    FormTranslation& translation_;
};

} // namespace glotta
