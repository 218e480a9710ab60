// The translation editor as the expert opens it: a port that the host's windows implement.
#pragma once
#include "runtime/CustomLang.h"

#include <functional>
#include <optional>
#include <string>

namespace glotta {

// What the editor's view of the extended translations shows of an item, besides component and property.
enum TransEditorShow : unsigned { tsValue = 1, tsTranslations = 2 };

// What the editor opens on: a record of a component, the list of one kind, or the extended translations.
struct TransEditorPlace {
    static constexpr int NoRecord = -1;
    TStringsType kind;
    int index;             // from 0, or NoRecord
    unsigned extended = 0; // a set of TransEditorShow for the extended translations, 0 for the lists
};
inline constexpr TransEditorPlace ExtendedTranslationsPlace{stCaptions, TransEditorPlace::NoRecord,
                                                            tsValue | tsTranslations};

class TransEditor {
public:
    virtual ~TransEditor() = default;
    // Opens the editor, at the place when there is one. True when the person changed translations.
    virtual bool TransEditorDlg(TgxCustomLang& component, const std::optional<TransEditorPlace>& place) = 0;

    // Hooks of the expert; empty while it is not loaded.
    // Shows where the unit uses the identifier, in front of all windows with `activate`; false when nowhere.
    std::function<bool(const std::string& id, bool activate)> NavigateToSource;
    std::function<void()> ShowAboutBox;
    // A string's identifier was changed and is to be changed in the source; without it the source stays as it
    // is. Gives the identifier to use in `id`: the one before when the person did not want the change.
    std::function<void(const std::string& formName, const std::string& before, std::string& id)>
        OnChangeStrID;
};

} // namespace glotta
