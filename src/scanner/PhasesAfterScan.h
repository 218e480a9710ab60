// What follows a scan before the review: found literals take the identifiers that stand for their texts
// already. The cost grows with the number of strings.
#pragma once
#include "scanner/FoundStrings.h"
#include "scanner/SourceFlavour.h"
#include "settings/SettingsValues.h"

#include <string>
#include <string_view>
#include <vector>

namespace glotta {

struct ComponentString {
    std::string id, text;
};

// What replacements are built from, besides the row.
struct ReplacementContext {
    std::string_view component;
    const SourceFlavour& flavour;
    const SettingsValues& settings;
};

// "Verifying found strings...": a literal whose text the component holds takes the identifier of the last
// such string.
void VerifyFound(TgxFoundSourceStrings& found, const std::vector<ComponentString>& strings,
                 const ReplacementContext& context);

// "Checking duplicates...": literals that are written alike share the first one's identifier. Each keeps its
// own tail.
void ShareDuplicates(TgxFoundSourceStrings& found, const ReplacementContext& context);

} // namespace glotta
