#include "vcl/ClassCatalogue.h"

#include "vcl/ClassTables.h"

#include <array>

namespace glotta {

namespace {

// Cuts the next word off.
std::string_view NextWord(std::string_view& text) {
    text = TrimLeft(text);
    const std::string_view word = text.substr(0, text.find_first_of(" \n"));
    text.remove_prefix(word.size());
    return word;
}

template <class Visit> void ForEachLine(std::string_view table, Visit visit) {
    while (!table.empty()) {
        std::size_t end = table.find('\n');
        while (end != std::string_view::npos && end + 1 < table.size() && table[end + 1] == ' ')
            end = table.find('\n', end + 1);
        const std::string_view line = Trim(table.substr(0, end));
        if (!line.empty()) visit(line);
        table.remove_prefix(end == std::string_view::npos ? table.size() : end + 1);
    }
}

TTypeKind KindOf(char letter) {
    switch (letter) {
    case 'i':
        return TTypeKind::tkInteger;
    case 'h':
        return TTypeKind::tkChar;
    case 'e':
        return TTypeKind::tkEnumeration;
    case 'f':
        return TTypeKind::tkFloat;
    case 's':
        return TTypeKind::tkLString;
    case 'w':
        return TTypeKind::tkWString;
    case 't':
        return TTypeKind::tkSet;
    case 'c':
        return TTypeKind::tkClass;
    case 'm':
        return TTypeKind::tkMethod;
    case 'v':
        return TTypeKind::tkVariant;
    case 'n':
        return TTypeKind::tkInterface;
    case '6':
        return TTypeKind::tkInt64;
    default:
        return TTypeKind::tkUnknown;
    }
}

struct Types {
    std::unordered_map<std::string_view, TTypeKind> kinds;           // of type names
    std::unordered_map<std::string_view, std::string_view> defaults; // property to type name

    Types() {
        ForEachLine(PropertyTypes, [this](std::string_view line) {
            const std::string_view type = NextWord(line);
            kinds.emplace(type, KindOf(NextWord(line).front()));
            for (std::string_view property = NextWord(line); !property.empty(); property = NextWord(line))
                defaults.emplace(property, type);
        });
    }

    PropertyInfo Property(std::string_view word) const {
        const std::size_t sign = word.find('=');
        std::string_view type;
        if (sign != std::string_view::npos) {
            type = word.substr(sign + 1);
        } else if (const auto known = defaults.find(word); known != defaults.end()) {
            type = known->second;
        }
        const auto kind = kinds.find(type);
        return {std::string(word.substr(0, sign)), std::string(type),
                kind == kinds.end() ? TTypeKind::tkUnknown : kind->second};
    }
};

ClassInfo ReadClass(std::string_view line, std::string_view unit, const Types& types) {
    const std::size_t colon = line.find(':');
    std::string_view head = line.substr(0, colon);
    std::string_view words = line.substr(colon + 1);
    ClassInfo info;
    info.unit = unit;
    info.name = NextWord(head);
    info.parent = NextWord(head);
    if (const std::string_view item = NextWord(head); item.size() > 2)
        info.itemClass = item.substr(1, item.size() - 2);
    for (std::string_view word = NextWord(words); !word.empty(); word = NextWord(words))
        info.properties.push_back(types.Property(word));
    return info;
}

} // namespace

std::string_view TypeKindName(TTypeKind kind) {
    static constexpr std::array<std::string_view, 19> names = {
        "tkUnknown", "tkInteger", "tkChar",   "tkEnumeration", "tkFloat",   "tkString",
        "tkSet",     "tkClass",   "tkMethod", "tkWChar",       "tkLString", "tkWString",
        "tkVariant", "tkArray",   "tkRecord", "tkInterface",   "tkInt64",   "tkDynArray",
        "tkUString"};
    return names[static_cast<std::size_t>(kind)];
}

const ClassCatalogue& ClassCatalogue::BuiltIn() {
    static const ClassCatalogue catalogue = [] {
        ClassCatalogue result;
        const Types types;
        std::string_view unit;
        for (std::string_view table : {BaseClasses, ControlClasses, ServiceClasses, GlottaClasses})
            ForEachLine(table, [&](std::string_view line) {
                if (line.front() == '@')
                    unit = line.substr(1);
                else
                    result.Add(ReadClass(line, unit, types));
            });
        return result;
    }();
    return catalogue;
}

const ClassCatalogue& ClassCatalogue::Clx() {
    static const ClassCatalogue catalogue = [] {
        ClassCatalogue result = BuiltIn();
        result.textKind_ = TTypeKind::tkWString;
        for (auto& [name, info] : result.classes_)
            for (PropertyInfo& property : info.properties)
                if (property.kind == TTypeKind::tkLString && property.typeName != "TComponentName")
                    property.kind = TTypeKind::tkWString;
        return result;
    }();
    return catalogue;
}

const ClassCatalogue& ClassCatalogue::OfForm(std::string_view formFile) {
    constexpr std::string_view extension = ".xfm";
    const bool clx = formFile.size() >= extension.size() &&
                     SameText(formFile.substr(formFile.size() - extension.size()), extension);
    return clx ? Clx() : BuiltIn();
}

const ClassInfo* ClassCatalogue::Find(std::string_view className) const {
    const auto found = classes_.find(className);
    return found == classes_.end() ? nullptr : &found->second;
}

bool ClassCatalogue::InheritsFrom(std::string_view className, std::string_view ancestor) const {
    for (const ClassInfo* info = nullptr;; className = info->parent) {
        if (SameText(className, ancestor)) return true;
        info = Find(className);
        if (!info || info->parent.empty()) return false;
    }
}

std::vector<const PropertyInfo*> ClassCatalogue::PublishedProperties(std::string_view className) const {
    std::vector<const ClassInfo*> line;
    for (const ClassInfo* info = Find(className); info; info = Find(info->parent))
        line.insert(line.begin(), info);
    std::vector<const PropertyInfo*> properties;
    std::unordered_map<std::string_view, std::size_t, TextHash, TextEqual> places;
    for (const ClassInfo* info : line)
        for (const PropertyInfo& property : info->properties) {
            const auto [place, isNew] = places.emplace(property.name, properties.size());
            if (isNew)
                properties.push_back(&property);
            else
                properties[place->second] = &property; // published again, with its own type
        }
    return properties;
}

const PropertyInfo* ClassCatalogue::FindProperty(std::string_view className,
                                                 std::string_view property) const {
    for (const ClassInfo* info = Find(className); info; info = Find(info->parent))
        for (const PropertyInfo& candidate : info->properties)
            if (SameText(candidate.name, property)) return &candidate;
    return nullptr;
}

const PropertyInfo* ClassCatalogue::UsualProperty(std::string_view property) {
    static const auto usual = [] {
        std::unordered_map<std::string, PropertyInfo, TextHash, TextEqual> result;
        const Types types;
        for (const auto& [name, type] : types.defaults)
            result.emplace(name, types.Property(name));
        return result;
    }();
    const auto found = usual.find(property);
    return found == usual.end() ? nullptr : &found->second;
}

void ClassCatalogue::Add(ClassInfo info) {
    std::string name = info.name;
    classes_.insert_or_assign(std::move(name), std::move(info));
}

} // namespace glotta
