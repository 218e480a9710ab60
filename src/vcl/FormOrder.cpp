#include "vcl/FormOrder.h"

#include "platform/Text.h"
#include "vcl/ClassCatalogue.h"

namespace glotta {

namespace {

// Stored by other means than run-time type information, so behind all published properties.
constexpr std::string_view StoredLast[] = {"DesignSize",  "PixelsPerInch", "TextHeight",    "ExplicitLeft",
                                           "ExplicitTop", "ExplicitWidth", "ExplicitHeight"};
// The place of what is no control, and a data module's size.
constexpr std::string_view StoredPlace[] = {"Left", "Top", "Height", "Width", "Bitmap"};
constexpr int UnknownRank = 10000, UnknownEventRank = 11000, StoredRank = 20000;

std::string_view FirstPart(std::string_view property) {
    return property.substr(0, property.find('.'));
}

// All that a data module can hold but for its events.
bool LooksLikeDataModule(const FormNode& node) {
    static constexpr std::string_view own[] = {"Tag",    "OldCreateOrder", "Left",         "Top",
                                               "Height", "Width",          "PixelsPerInch"};
    bool height = false, width = false, heightFirst = false;
    for (const FormProperty& property : node.properties) {
        const auto is = [&](std::string_view name) { return SameText(property.name, name); };
        if (!StartsWithText(property.name, "On") && std::none_of(std::begin(own), std::end(own), is))
            return false;
        height = height || is("Height");
        width = width || is("Width");
        heightFirst = heightFirst || (height && !width);
    }
    return heightFirst; // a form writes its width first
}

// Classes that are not known are ordered like forms, which publish nearly everything common.
std::string_view OrderedLike(const FormNode& node) {
    if (ClassCatalogue::BuiltIn().Find(node.className)) return node.className;
    return LooksLikeDataModule(node) ? "TDataModule" : "TForm";
}

class Order {
public:
    explicit Order(std::string_view className) {
        int rank = StoredRank;
        for (std::string_view last : StoredLast)
            places_.emplace(last, Place{rank++, {}});
        rank = 0;
        for (const PropertyInfo* property : catalogue_.PublishedProperties(className))
            places_.emplace(property->name, Place{rank++, property->typeName});
        rank = StoredRank;
        if (!catalogue_.InheritsFrom(className, "TControl"))
            for (std::string_view last : StoredPlace)
                places_.emplace(last, Place{rank++, {}});
    }

    // Properties of an object ('Font.Name') stand in the order of the object's class.
    std::pair<int, int> RankOf(std::string_view property) const {
        const std::string_view first = FirstPart(property);
        const auto known = places_.find(first);
        // Unknown properties stand behind the known ones, unknown events behind these.
        if (known == places_.end()) return {StartsWithText(first, "On") ? UnknownEventRank : UnknownRank, 0};
        if (first.size() == property.size()) return {known->second.rank, 0};
        const std::string_view inner = FirstPart(property.substr(first.size() + 1));
        const auto published = catalogue_.PublishedProperties(known->second.type);
        const auto found = std::find_if(published.begin(), published.end(), [&](const PropertyInfo* info) {
            return SameText(info->name, inner);
        });
        return {known->second.rank, static_cast<int>(found - published.begin())};
    }

private:
    struct Place {
        int rank;
        std::string_view type;
    };
    const ClassCatalogue& catalogue_ = ClassCatalogue::BuiltIn();
    std::unordered_map<std::string_view, Place, TextHash, TextEqual> places_;
};

} // namespace

std::size_t NewPropertyIndex(const FormNode& node, std::string_view property) {
    const Order order(OrderedLike(node));
    const auto rank = order.RankOf(property);
    std::size_t index = node.properties.size();
    while (index > 0 && order.RankOf(node.properties[index - 1].name) > rank)
        --index;
    return index;
}

} // namespace glotta
