#include "storage/FindPhrase.h"

#include "platform/Text.h"
#include "storage/ShowPlace.h"
#include "storage/_findphrase.h"
#include "translation/TransTexts.h"

#include <algorithm>
#include <optional>
#include <unordered_map>

namespace glotta {

namespace {

constexpr std::size_t MostListed = 20; // identifiers in a message

// Replaces in one form's component. Records are kept here until their kind is done, and written back at once.
class FormReplacer {
public:
    FormReplacer(const FormsListItem& item, TgxCustomLang& component, const Phrase& phrase,
                 const PhraseReplacement& replacement, PhraseReplacements& done)
        : item_(item), component_(component), phrase_(phrase), replacement_(replacement), done_(done) {}

    // How the person answers; without it everything is replaced.
    std::function<ModalResult(const PhraseChange&)> Ask;

    // False when the person gave up; what was agreed to before stays.
    bool Run() {
        bool goOn = true;
        for (const PhrasePlace& place : phrase_.Places(component_)) {
            if (place.kind != kind_) Begin(place.kind);
            if (!(goOn = ReplaceAt(place))) break;
        }
        WriteBack();
        return goOn;
    }
    bool Changed() const { return changed_; }

private:
    void Begin(TStringsType kind) {
        WriteBack();
        kind_ = kind;
        records_ = component_.Strings(kind).Items();
        ids_.reset();
    }
    void WriteBack() {
        if (kindChanged_) component_.SetStrings(*kind_, std::move(records_));
        kindChanged_ = false;
    }

    bool ReplaceAt(const PhrasePlace& place) {
        std::string& record = records_[std::size_t(place.line)];
        const std::string before = RecordField(record, place.language + 1);
        const std::string after = phrase_.Replaced(before, replacement_.text);
        if (after == before) return true;
        const std::string refusal = place.language == 0 ? Refusal(before, after) : std::string();
        if (!refusal.empty()) {
            done_.identifiers.push_back({item_.formName, before, after, place.kind, refusal});
            return true;
        }
        switch (Answer(place, before, after)) {
        case ModalResult::Yes:
            break;
        case ModalResult::YesToAll:
            Ask = {};
            break;
        case ModalResult::No:
            return true;
        default:
            return false;
        }
        record = WithField(record, place.language + 1, after);
        if (place.language == 0) Renamed(before, after);
        changed_ = kindChanged_ = true;
        ++done_.texts;
        return true;
    }

    ModalResult Answer(const PhrasePlace& place, const std::string& before, const std::string& after) const {
        if (!Ask) return ModalResult::Yes;
        return Ask({item_.fileName, std::string(StringsPropertyName(place.kind)),
                    LocationOf(component_, place), before, after});
    }

    // Why an identifier cannot become another one.
    std::string Refusal(const std::string& before, const std::string& after) {
        if (!IsUsableID(after))
            return "an identifier shall not be empty and shall not contain quotes or control characters";
        const auto& ids = Ids();
        const auto found = ids.find(after);
        const int others = found == ids.end() ? 0 : found->second - (SameText(before, after) ? 1 : 0);
        return others > 0 ? "that identifier is already used" : "";
    }
    void Renamed(const std::string& before, const std::string& after) {
        --Ids()[before];
        ++Ids()[after];
        done_.identifiers.push_back({item_.formName, before, after, *kind_, {}});
    }
    std::unordered_map<std::string, int, TextHash, TextEqual>& Ids() {
        if (!ids_) {
            ids_.emplace();
            for (const std::string& record : records_)
                ++(*ids_)[RecordField(record, 1)];
        }
        return *ids_;
    }

    const FormsListItem& item_;
    TgxCustomLang& component_;
    const Phrase& phrase_;
    const PhraseReplacement& replacement_;
    PhraseReplacements& done_;
    std::optional<TStringsType> kind_;
    std::vector<std::string> records_;
    std::optional<std::unordered_map<std::string, int, TextHash, TextEqual>> ids_; // how often each is there
    bool changed_ = false, kindChanged_ = false;
};

std::string Listed(const std::string& heading, const std::vector<std::string>& lines) {
    std::string text = heading;
    for (std::size_t i = 0; i < std::min(lines.size(), MostListed); ++i)
        text += "\r\n" + lines[i];
    if (lines.size() > MostListed)
        text += "\r\n... and " + std::to_string(lines.size() - MostListed) + " more";
    return text;
}

} // namespace

void FindPhrase::ForEachForm(const char* doing,
                             const std::function<Work(const FormsListItem&, TgxCustomLang&)>& work) {
    const std::vector<FormsListItem*> selected = ide_.Forms().Selected();
    if (selected.empty()) return;
    Progress progress(ide_.GetUi(), doing + selected.front()->formName);
    for (const FormsListItem* item : selected) {
        if (progress.Cancelled()) return;
        const bool wasOpen = ide_.IsFileOpen(item->fileName);
        if (!wasOpen && item->glotta.empty()) continue;
        progress.Text(doing + item->formName);
        TgxCustomLang* const component = translation_.GetGlotta(item->formName);
        const Work done = component ? work(*item, *component) : Work{};
        if (done.changed) ide_.MarkModifiedForm(item->fileName);
        // What could not be saved stays open, so that nothing is lost.
        if (!wasOpen && (!done.changed || ide_.SaveFile(item->fileName))) ide_.CloseFile(item->fileName);
        if (!done.goOn) return;
    }
}

// The identifiers from `first` on. One that the source goes on using is put back.
void FindPhrase::RenameInSource(TgxCustomLang& component, PhraseReplacements& done, std::size_t first) {
    for (std::size_t i = first; i < done.identifiers.size(); ++i) {
        PhraseIdentifier& one = done.identifiers[i];
        if (one.kind != stStrings || !one.refusal.empty()) continue;
        std::string used = one.id;
        OnChangeStrID(one.formName, one.before, used);
        const int place = component.GetIDIndex(one.id), taken = component.GetIDIndex(used);
        if (used == one.id || place < 0 || (taken >= 0 && taken != place)) continue;
        std::vector<std::string> records = component.Strings(stStrings).Items();
        records[std::size_t(place)] = WithField(records[std::size_t(place)], 1, used);
        component.SetStrings(stStrings, std::move(records));
        one.id = used;
        --done.texts;
    }
}

std::vector<FoundPhrase> FindPhrase::Find(const PhraseOptions& options) {
    const Phrase phrase(options);
    std::vector<FoundPhrase> found;
    ForEachForm("Finding phrase: ", [&](const FormsListItem& item, TgxCustomLang& component) {
        for (const PhrasePlace& place : phrase.Places(component))
            found.push_back(
                {item.formName, component.Name(), item.fileName, place, LocationOf(component, place),
                 RecordField(component.Strings(place.kind)[std::size_t(place.line)], place.language + 1)});
        return Work{};
    });
    return found;
}

PhraseReplacements FindPhrase::Replace(const PhraseReplacement& replacement) {
    const Phrase phrase(replacement.find);
    PhraseReplacements done;
    std::function<ModalResult(const PhraseChange&)> ask;
    if (replacement.prompt)
        ask = [this](const PhraseChange& change) {
            TfrmReplConfirm dialog(ide_.GetUi(), change);
            return ide_.GetUi().ShowModal(dialog);
        };
    ForEachForm("Replacing phrase: ", [&](const FormsListItem& item, TgxCustomLang& component) {
        FormReplacer replacer(item, component, phrase, replacement, done);
        replacer.Ask = ask;
        const std::size_t known = done.identifiers.size();
        const bool goOn = replacer.Run();
        ask = replacer.Ask; // "Yes To All" holds for all forms
        if (OnChangeStrID) RenameInSource(component, done, known);
        return Work{replacer.Changed(), goOn};
    });
    return done;
}

void FindPhrase::Findword1Click(RegistryStore& registry, std::unique_ptr<TfrmFoundPhrases>& window) {
    if (ide_.Forms().Selected().empty()) return;
    Ui& ui = ide_.GetUi();
    PhraseOptions options;
    {
        TfrmFind dialog(ui, registry, TfrmFind::Command::Find);
        if (ui.ShowModal(dialog) != ModalResult::OK) return;
        options = dialog.Options();
    }
    if (window && window->IsOpen()) window->LVIDs.SetRows({});
    std::vector<FoundPhrase> found = Find(options);
    if (found.empty()) return;
    if (!window || !window->IsOpen()) {
        window = std::make_unique<TfrmFoundPhrases>(registry);
        window->OnShowPlace = [&ide = ide_](const FoundPhrase& place) {
            ShowComponent(ide, place.fileName, place.formName, place.componentName);
        };
    }
    window->LVIDs.SetRows(std::move(found));
    window->Opened();
    ui.Show(*window);
}

void FindPhrase::Replacephrase1Click(RegistryStore& registry) {
    if (ide_.Forms().Selected().empty()) return;
    PhraseReplacement replacement;
    {
        TfrmFind dialog(ide_.GetUi(), registry, TfrmFind::Command::Replace);
        const ModalResult way = ide_.GetUi().ShowModal(dialog);
        if (way != ModalResult::OK && way != ModalResult::Yes) return;
        replacement = {dialog.Options(), dialog.edReplace(), dialog.ckbDoPrompt()};
    }
    Tell(Replace(replacement));
}

void FindPhrase::Tell(const PhraseReplacements& done) {
    std::vector<std::string> refused, renamed;
    for (const PhraseIdentifier& one : done.identifiers) {
        const std::string change = one.formName + ": \"" + one.before + "\" -> \"" + one.id + "\"";
        if (!one.refusal.empty())
            refused.push_back(change + " (" + one.refusal + ")");
        else if (one.kind == stStrings && !OnChangeStrID)
            renamed.push_back(change);
    }
    if (!refused.empty())
        ide_.GetUi().MessageDlg(Listed("These identifiers were not replaced:", refused), MsgType::Error);
    if (!renamed.empty())
        ide_.GetUi().MessageDlg(Listed("Source code that uses these identifiers is not changed:", renamed),
                                MsgType::Warning);
}

} // namespace glotta
