// The command that localizes one unit: scans its source, lets the developer review what was found, rewrites
// the source into look-up calls and adds the texts to the localization component.
#pragma once
#include "ide/Services.h"
#include "platform/TextEdit.h"
#include "scanner/FoundStrings.h"
#include "scanner/HelperLibrary.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace glotta {

class ConstantContexts;
class ExpertSettings;
class RegistryStore;

// What the last run found; the skipped strings stay for "Strings Skipped by Expert" until the next run.
// Rows that were left alone have a note.
struct ScanResults {
    TgxFoundSourceStrings found;
    std::vector<TgxSkippedString> skipped;
    std::string source; // the text that was scanned
};

struct ScanContext {
    IdeServices& ide;
    ExpertSettings& settings;
    RegistryStore& registry;
    const HelperLibrary& helper;
    ScanResults& results;
};

class ScanReplace {
public:
    // Without review, rows are taken as found, but those with a note are left alone.
    enum class Review : bool { None, Dialog };

    ScanReplace(ScanContext context, Review review);
    ~ScanReplace();

    // `unitName` is a form's name in the form list, or a unit's name or file name. `stringsForm` is empty for
    // the unit's own form, or names the form whose component receives the strings. True when the source was
    // changed. Without such a component: the message, then EGlottaSilent.
    bool DoScanReplace(const std::string& unitName, const std::string& stringsForm, bool constMode,
                       bool selectionOnly);
    // Whether the person stopped the last run, before the review.
    bool Cancelled() const { return cancelled_; }

    // Whether a CONST-section scan of the unit would find a constant that can be localized. Changes nothing.
    bool FindsConstants(const std::string& unitName);

private:
    struct Job; // one run

    bool StoppedIn(const Progress& progress);
    void LocateUnit(Job& job, const std::string& unitName);
    void LocateComponent(Job& job, const std::string& stringsForm);
    void OpenUnit(Job& job);
    void Scan(Job& job);
    void NoteUnreachable(Job& job);
    void NoteConstants(Job& job, std::string_view formClass);
    bool ReviewRows(Job& job);
    bool Modify(Job& job);
    void TellLeftAlone(const Job& job);
    TextEdits IgnoreMarks(const Job& job);
    TextEdits SoundLiteralEdits(Job& job);
    TextEdits ConstantEdits(Job& job);
    TextEdits WireForm(const Job& job, std::string_view formText);
    void ReachForm(const Job& job, TextEdits& edits);
    const ConstantContexts& UsesInProject();

    ScanContext context_;
    Review review_;
    bool cancelled_ = false;
    std::unique_ptr<ConstantContexts> project_; // of the units of the project at the first CONST-section scan
};

} // namespace glotta
