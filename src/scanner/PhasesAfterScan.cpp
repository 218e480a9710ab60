#include "scanner/PhasesAfterScan.h"

#include "scanner/ReplacementText.h"

namespace glotta {
namespace {

void GiveID(TgxFoundSourceString& row, const std::string& id, const ReplacementContext& context) {
    if (row.ID == id) return;
    row.ID = id;
    RebuildReplacement(row, context.component, context.flavour, context.settings);
}

} // namespace

void VerifyFound(TgxFoundSourceStrings& found, const std::vector<ComponentString>& strings,
                 const ReplacementContext& context) {
    std::unordered_map<std::string_view, const std::string*> ids;
    for (const ComponentString& string : strings)
        ids[string.text] = &string.id;
    for (std::size_t i = 0; i < found.Count(); ++i)
        if (const auto known = ids.find(found[i].Value); known != ids.end())
            GiveID(found[i], *known->second, context);
}

void ShareDuplicates(TgxFoundSourceStrings& found, const ReplacementContext& context) {
    std::unordered_map<std::string_view, const std::string*> ids;
    for (std::size_t i = 0; i < found.Count(); ++i)
        GiveID(found[i], *ids.try_emplace(found[i].SourceText, &found[i].ID).first->second, context);
}

} // namespace glotta
