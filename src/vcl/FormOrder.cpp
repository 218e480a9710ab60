#include "vcl/FormOrder.h"

#include "platform/Text.h"
#include "vcl/ClassCatalogue.h"

namespace glotta {

namespace {

using Ranks = std::unordered_map<std::string, int, TextHash, TextEqual>;

// Stored by other means than run-time type information, so behind all published properties.
constexpr std::string_view StoredLast[] = {"DesignSize",  "PixelsPerInch", "TextHeight",    "ExplicitLeft",
                                           "ExplicitTop", "ExplicitWidth", "ExplicitHeight"};
constexpr std::string_view StoredLastWithPlace[] = {"Left", "Top", "Height", "Width", "Bitmap"};

std::string_view FirstPart(std::string_view property) {
    return property.substr(0, property.find('.'));
}

// A data module's place and size are written with the height first, a form's with the width first.
bool LooksLikeDataModule(const FormNode& node) {
    for (const FormProperty& property : node.properties) {
        if (SameText(property.name, "Width") || SameText(property.name, "ClientWidth")) return false;
        if (SameText(property.name, "Height")) return true;
    }
    return false;
}

// Classes that are not known are ordered like forms, which publish nearly everything common.
std::string_view OrderedLike(const FormNode& node) {
    if (ClassCatalogue::BuiltIn().Find(node.className)) return node.className;
    return LooksLikeDataModule(node) ? "TDataModule" : "TForm";
}

Ranks RanksOf(std::string_view className) {
    const ClassCatalogue& catalogue = ClassCatalogue::BuiltIn();
    Ranks ranks;
    int rank = 0;
    for (std::string_view last : StoredLast)
        ranks.emplace(last, 20000 + rank++);
    if (!catalogue.InheritsFrom(className, "TControl"))
        for (std::string_view last : StoredLastWithPlace)
            ranks.emplace(last, 20000 + rank++);
    rank = 0;
    for (const PropertyInfo* property : catalogue.PublishedProperties(className))
        ranks.emplace(property->name, rank++);
    return ranks;
}

// Unknown properties stand behind the known ones, unknown events behind these.
int RankOf(std::string_view property, const Ranks& ranks) {
    const std::string_view first = FirstPart(property);
    if (const auto known = ranks.find(first); known != ranks.end()) return known->second;
    return StartsWithText(first, "On") ? 11000 : 10000;
}

} // namespace

std::size_t NewPropertyIndex(const FormNode& node, std::string_view property) {
    const Ranks ranks = RanksOf(OrderedLike(node));
    const int rank = RankOf(property, ranks);
    std::size_t index = node.properties.size();
    while (index > 0 && RankOf(node.properties[index - 1].name, ranks) > rank)
        --index;
    return index;
}

} // namespace glotta
