#include "runtime/ExtendedTranslations.h"

#include "platform/Text.h"

namespace glotta {
namespace {

constexpr const char* Collection = "ExtendedTranslations";

FormValue ItemsOf(const TComponent& localization) {
    const FormProperty* property = localization.Node().Find(Collection);
    if (property && property->value.kind == FormValueKind::Collection) return property->value;
    FormValue none;
    none.kind = FormValueKind::Collection;
    return none;
}

std::string TextOf(const FormItem& item, std::string_view name) {
    for (const FormProperty& property : item.properties)
        if (SameText(property.name, name)) return property.value.text;
    return {};
}

} // namespace

std::vector<ExtendedTranslation> ReadExtendedTranslations(const TComponent& localization) {
    std::vector<ExtendedTranslation> items;
    for (const FormItem& item : ItemsOf(localization).collection)
        items.push_back({TextOf(item, "Component"), TextOf(item, "PropertyName")});
    return items;
}

void AddExtendedTranslation(TComponent& localization, const ExtendedTranslation& item) {
    FormValue items = ItemsOf(localization);
    FormItem added;
    added.properties.push_back({"Component", FormValue::Identifier(item.component), {}});
    added.properties.push_back({"PropertyName", FormValue::String(item.property), {}});
    items.collection.push_back(std::move(added));
    localization.Node().Set(Collection, std::move(items));
}

void DeleteExtendedTranslation(TComponent& localization, std::size_t index) {
    FormValue items = ItemsOf(localization);
    if (index >= items.collection.size()) return;
    items.collection.erase(items.collection.begin() + std::ptrdiff_t(index));
    if (items.collection.empty())
        localization.Node().Remove(Collection);
    else
        localization.Node().Set(Collection, std::move(items));
}

} // namespace glotta
