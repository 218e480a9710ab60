#include "scanner/PhasesAfterScan.h"

#include "scanner/ReplacementText.h"
#include "scanner/TextIndex.h"

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
    TextIndex texts(strings.size());
    std::vector<const std::string*> ids(strings.size());
    for (const ComponentString& string : strings)
        ids[texts.Add(string.text)] = &string.id;
    for (std::size_t i = 0; i < found.Count(); ++i)
        if (const std::size_t known = texts.IndexOf(found[i].Value); known != TextIndex::npos)
            GiveID(found[i], *ids[known], context);
}

void ShareDuplicates(TgxFoundSourceStrings& found, const ReplacementContext& context) {
    TextIndex texts(found.Count());
    std::vector<const std::string*> ids(found.Count());
    for (std::size_t i = 0; i < found.Count(); ++i) {
        const std::string*& first = ids[texts.Add(found[i].SourceText)];
        if (!first) first = &found[i].ID;
        GiveID(found[i], *first, context);
    }
}

} // namespace glotta
