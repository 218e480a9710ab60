#include "editors/ExcludeCommand.h"

#include "editors/Excludededitor.h"

#include <optional>

namespace glotta {

namespace {

using Names = std::vector<std::string>;

void SaveAndClose(IdeServices& ide, const std::string& fileName) {
    ide.SaveFile(fileName);
    ide.CloseFile(fileName);
}

// The properties excluded on this form when the person changed something, else nothing.
std::optional<Names> EditFirst(IdeServices& ide, FormTranslation& translation, RegistryStore& registry,
                               const FormsListItem& item, bool severalForms) {
    const bool wasOpen = ide.IsFileOpen(item.fileName);
    const auto closeAgain = [&] {
        if (!wasOpen && ide.IsFileOpen(item.fileName)) ide.CloseFile(item.fileName);
    };
    TgxCustomLang* const lang = translation.GetGlotta(item.formName);
    if (!lang || !DisplayExcludeDialog(ide.GetUi(), registry, *lang, PropertiesPage, severalForms)) {
        closeAgain();
        return {};
    }
    ide.MarkModifiedForm(item.fileName);
    Names excluded = lang->GetStrings("ExcludedProperties");
    if (!wasOpen) SaveAndClose(ide, item.fileName);
    return excluded;
}

void TakeOver(IdeServices& ide, FormTranslation& translation, const FormsListItem& item,
              const Names& excluded) {
    const bool wasOpen = ide.IsFileOpen(item.fileName);
    if (TgxCustomLang* lang = translation.GetGlotta(item.formName)) {
        lang->SetExProps(excluded);
        ide.MarkModifiedForm(item.fileName);
        if (!wasOpen) SaveAndClose(ide, item.fileName);
    } else if (!wasOpen && ide.IsFileOpen(item.fileName)) {
        ide.CloseFile(item.fileName);
    }
}

} // namespace

void ExcludeProperties(IdeServices& ide, FormTranslation& translation, RegistryStore& registry) {
    const std::vector<FormsListItem*> selected = ide.Forms().Selected();
    if (selected.empty()) return;
    const auto excluded = EditFirst(ide, translation, registry, *selected.front(), selected.size() > 1);
    if (!excluded) return; // nothing was edited that the others could take over
    for (std::size_t i = 1; i < selected.size(); ++i)
        TakeOver(ide, translation, *selected[i], *excluded);
}

} // namespace glotta
