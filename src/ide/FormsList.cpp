#include "ide/FormsList.h"
#include "platform/Error.h"
#include "platform/Files.h"
#include "platform/Text.h"
#include "runtime/CustomLang.h"

namespace glotta {
namespace {

bool IsLocalization(const ClassCatalogue& catalogue, std::string_view className) {
    return catalogue.InheritsFrom(className, "TgxCustomLang");
}

template <class Wanted> bool Holds(const FormNode& node, const Wanted& wanted) {
    return std::any_of(node.children.begin(), node.children.end(), [&](const auto& child) {
        return wanted(child->className) || Holds(*child, wanted);
    });
}

template <class Items, class Matches> FormsListItem* FindItem(Items& items, Matches matches) {
    const auto found = std::find_if(items.begin(), items.end(), matches);
    return found == items.end() ? nullptr : &*found;
}

} // namespace

FormsListItem* FormsList::FindExact(std::string_view formName) {
    return FindItem(items, [&](const FormsListItem& item) { return item.formName == formName; });
}

FormsListItem* FormsList::FindText(std::string_view formName) {
    return FindItem(items, [&](const FormsListItem& item) { return SameText(item.formName, formName); });
}

std::vector<FormsListItem*> FormsList::Selected() {
    std::vector<FormsListItem*> selected;
    for (FormsListItem& item : items)
        if (item.selected) selected.push_back(&item);
    return selected;
}

FormAnalysis AnalyzeFormFile(const std::string& formFile) {
    RegisterGlottaClasses();
    const ClassCatalogue& catalogue = ClassCatalogue::BuiltIn();
    FormFile form = FormFile::Parse(ReadFile(PathFromText(formFile)), formFile);
    FormAnalysis analysis;
    analysis.formName = form.Root().name;
    const auto isDispatcher = [&](std::string_view name) { return catalogue.InheritsFrom(name, "TGlottaDispatcher"); };
    analysis.dispatcher = Holds(form.Root(), isDispatcher);
    // Component objects are built only for a form that has a localization component: most have none.
    if (!Holds(form.Root(), [&](std::string_view name) { return IsLocalization(catalogue, name); })) return analysis;
    ComponentTree tree(form, {}, catalogue);
    for (TComponent* component : tree.Root().Components()) {
        if (!IsLocalization(catalogue, component->ClassName())) continue;
        analysis.glotta = component->ClassName();
        if (const auto* lang = dynamic_cast<const TgxCustomLang*>(component))
            analysis.languages = lang->NumberOfLanguages();
        break;
    }
    return analysis;
}

FormsList ListProjectForms(const IOTAProject& project, std::vector<std::string>& errors) {
    FormsList list;
    for (const IOTAModuleInfo& info : project.Modules()) {
        if (info.formFile.empty()) continue;
        FormsListItem item;
        item.formName = info.formName;
        item.unitName = info.unitName;
        item.fileName = info.fileName;
        try {
            const FormAnalysis analysis = AnalyzeFormFile(info.formFile);
            item.languages = std::to_string(analysis.languages);
            item.glotta = analysis.glotta;
            item.dispatcher = analysis.dispatcher;
            item.imageIndex = analysis.glotta.empty() ? 0 : 1;
        } catch (const Error& error) {
            errors.emplace_back(error.what());
        }
        list.items.push_back(std::move(item));
    }
    return list;
}

} // namespace glotta
