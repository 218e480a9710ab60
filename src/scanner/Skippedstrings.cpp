#include "scanner/Skippedstrings.h"

#include "scanner/SourceMarks.h"

namespace glotta {

const char* SkipReasonText(TStringSkipReason reason) {
    switch (reason) {
    case ssrNone:
        return "None";
    case ssrBadChars:
        return "Found string consists of the only characters specified for exclusion. Please see \"Exclude "
               "strings "
               "containing only characters like:\" option settings.";
    case ssrByLine:
        return "Found string contains phrase specified for skip. Please see \"Skip lines containing:\" "
               "option "
               "settings.";
    case ssrByPhrase:
        return "Found string is equal to phrase specified for skip. Please see \"Skip words and phrases:\" "
               "option "
               "settings.";
    case ssrByPhrasesRE:
        return "Found string matches to Regular Expression specified for skip. Please see \"Skip words and "
               "phrases:\" option settings.";
    case ssByIgnoreTag:
        return "Source line with found string contains TGL:IGNORE tag, that forces Expert to skip this line.";
    case ssrComments:
        return "The string is found in source comments.";
    }
    return "";
}

TfrmSkippedStrings::TfrmSkippedStrings(IdeServices& ide, int previewLines,
                                       std::vector<TgxSkippedString> skipped, std::string source,
                                       RegistryStore* registry)
    : ide_(ide), previewLines_(previewLines), skipped_(std::move(skipped)), source_(std::move(source)),
      registry_(registry) {
    caption = "Strings Skipped by Expert";
    lbStrings.OnChange = [this] { ShowChosen(); };
    if (registry_) Placement.Set(TgxFormStorage(*registry_, PlacementKey).ReadPlacement());
    if (!skipped_.empty()) lbStrings.SelectOnly(0);
}

bool TfrmSkippedStrings::CloseQuery(Ui&, ModalResult) {
    if (registry_ && Placement()) TgxFormStorage(*registry_, PlacementKey).WritePlacement(*Placement());
    return true;
}

void TfrmSkippedStrings::ShowChosen() {
    if (lbStrings.Row() < 0) return;
    const TgxSkippedString& chosen = skipped_[std::size_t(lbStrings.Row())];
    const std::size_t position = chosen.SourcePos ? chosen.SourcePos : chosen.ConstPos;
    edPreview.Set(
        GetCurrentSourcePreview(ide_, previewLines_, position, chosen.Line + 1, PreviewLine, source_));
    edReason.Set(SkipReasonText(chosen.Reason));
}

} // namespace glotta
