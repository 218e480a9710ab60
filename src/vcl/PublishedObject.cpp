#include "vcl/PublishedObject.h"

#include <unordered_set>

namespace glotta {

namespace {

// Components that their owner creates and saves inside itself.
constexpr std::string_view SubComponentClass = "TBoundLabel";

struct ValueKind {
    FormValueKind value;
    TTypeKind kind;
    std::string_view typeName;
};
constexpr ValueKind ValueKinds[] = {{FormValueKind::True, TTypeKind::tkEnumeration, "Boolean"},
                                    {FormValueKind::False, TTypeKind::tkEnumeration, "Boolean"},
                                    {FormValueKind::Integer, TTypeKind::tkInteger, "Integer"},
                                    {FormValueKind::Float, TTypeKind::tkFloat, "Double"},
                                    {FormValueKind::Currency, TTypeKind::tkFloat, "Currency"},
                                    {FormValueKind::Date, TTypeKind::tkFloat, "TDateTime"},
                                    {FormValueKind::String, TTypeKind::tkLString, "string"},
                                    {FormValueKind::Set, TTypeKind::tkSet, {}},
                                    {FormValueKind::Collection, TTypeKind::tkClass, "TCollection"},
                                    {FormValueKind::Nil, TTypeKind::tkClass, "TComponent"}};

// What dotted names say: an object of some class, by its usual name of a known one.
std::string_view ObjectClass(std::string_view name, std::string_view below) {
    if (SameText(below, "Strings")) return "TStrings";
    const PropertyInfo* usual = ClassCatalogue::UsualProperty(name);
    const bool agrees = usual && usual->kind == TTypeKind::tkClass &&
                        ClassCatalogue::BuiltIn().InheritsFrom(usual->typeName, "TPersistent") &&
                        !ClassCatalogue::BuiltIn().InheritsFrom(usual->typeName, "TStrings") &&
                        !ClassCatalogue::BuiltIn().InheritsFrom(usual->typeName, "TComponent");
    return agrees ? std::string_view(usual->typeName) : "TPersistent";
}

// What a value in the file says about a property that the catalogue does not know; `name` may be dotted.
PropertyInfo InfoFromFile(std::string_view name, const FormValue& value, TTypeKind textKind) {
    const std::size_t dot = name.find('.');
    PropertyInfo info{std::string(name.substr(0, dot)), {}, TTypeKind::tkUnknown};
    if (dot != std::string_view::npos) {
        info.kind = TTypeKind::tkClass;
        info.typeName = ObjectClass(info.name, name.substr(dot + 1));
        return info;
    }
    if (value.kind == FormValueKind::Identifier)
        info.kind = StartsWithText(name, "On") ? TTypeKind::tkMethod : TTypeKind::tkEnumeration;
    for (const ValueKind& known : ValueKinds)
        if (known.value == value.kind) {
            info.kind = known.kind;
            info.typeName = known.typeName;
        }
    if (value.kind == FormValueKind::String) info.kind = textKind;
    return info;
}

} // namespace

PublishedObject::PublishedObject(const TComponent& component)
    : catalogue_(&component.Tree().Catalogue()), form_(&component.Tree().Root()), kind_(Kind::Component),
      className_(component.ClassName()), component_(&component), file_(&component.Node().properties) {}

std::string_view PublishedObject::CatalogueClass() const {
    return component_ ? component_->CatalogueClass() : std::string_view(className_);
}

std::vector<PropertyInfo> PublishedObject::Properties() const {
    std::vector<PropertyInfo> properties;
    const auto known = catalogue_->PublishedProperties(CatalogueClass());
    std::unordered_set<std::string_view, TextHash, TextEqual> names;
    properties.reserve(known.size());
    for (const PropertyInfo* info : known) {
        names.insert(info->name);
        properties.push_back(*info);
    }
    if (file_)
        for (const FormProperty& property : *file_) {
            if (!StartsWithText(property.name, prefix_)) continue;
            const std::string_view name = std::string_view(property.name).substr(prefix_.size());
            if (names.insert(name.substr(0, name.find('.'))).second)
                properties.push_back(InfoFromFile(name, property.value, catalogue_->TextKind()));
        }
    return properties;
}

std::optional<PropertyInfo> PublishedObject::FindProperty(std::string_view name) const {
    if (const PropertyInfo* info = catalogue_->FindProperty(CatalogueClass(), name)) return *info;
    if (file_)
        for (const FormProperty& property : *file_) {
            if (!StartsWithText(property.name, prefix_)) continue;
            const std::string_view candidate = std::string_view(property.name).substr(prefix_.size());
            if (SameText(candidate.substr(0, candidate.find('.')), name))
                return InfoFromFile(candidate, property.value, catalogue_->TextKind());
        }
    return {};
}

const FormProperty* PublishedObject::Find(std::string_view name) const {
    if (!file_) return nullptr;
    const std::string path = prefix_ + std::string(name);
    const auto found = std::find_if(file_->begin(), file_->end(), [&](const FormProperty& property) {
        return SameText(property.name, path);
    });
    return found == file_->end() ? nullptr : &*found;
}

bool PublishedObject::HasBelow(std::string_view name) const {
    const std::string path = prefix_ + std::string(name) + '.';
    return file_ && std::any_of(file_->begin(), file_->end(), [&](const FormProperty& property) {
               return StartsWithText(property.name, path);
           });
}

const TComponent* PublishedObject::Resolve(std::string_view name) const {
    return SameText(name, form_->Name()) ? form_ : form_->FindComponent(name);
}

std::optional<PublishedObject> PublishedObject::Object(const PropertyInfo& property) const {
    if (property.kind != TTypeKind::tkClass) return {};
    const FormProperty* const value = Find(property.name);
    if (value && value->value.kind == FormValueKind::Identifier) {
        const TComponent* const target = Resolve(value->value.text);
        return target ? std::optional(PublishedObject(*target)) : std::nullopt;
    }
    const bool isComponent = catalogue_->InheritsFrom(property.typeName, "TComponent");
    const bool isInside = SameText(property.typeName, SubComponentClass) || HasBelow(property.name);
    if (isComponent && !isInside) return {};
    const auto inherits = [&](std::string_view ancestor) {
        return catalogue_->InheritsFrom(property.typeName, ancestor);
    };
    const Kind kind = isComponent              ? Kind::Component
                      : inherits("TStrings")    ? Kind::Strings
                      : inherits("TCollection") ? Kind::Collection
                                                : Kind::Persistent;
    PublishedObject object(*this, kind, property.typeName);
    object.file_ = file_;
    object.prefix_ = prefix_ + property.name + '.';
    if (kind == Kind::Collection && value) object.items_ = &value->value.collection;
    return object;
}

std::vector<PublishedObject> PublishedObject::Items() const {
    std::vector<PublishedObject> items;
    if (!items_) return items;
    std::string itemClass = "TCollectionItem";
    for (const ClassInfo* info = catalogue_->Find(className_); info; info = catalogue_->Find(info->parent))
        if (!info->itemClass.empty()) {
            itemClass = info->itemClass;
            break;
        }
    items.reserve(items_->size());
    for (const FormItem& item : *items_) {
        items.push_back(PublishedObject(*this, Kind::Item, itemClass));
        items.back().file_ = &item.properties;
    }
    return items;
}

} // namespace glotta
