#include "editors/CandidateProperties.h"

#include "runtime/TextKinds.h"
#include "vcl/PublishedObject.h"

#include <unordered_set>

namespace glotta {

namespace {

using Kind = PublishedObject::Kind;

class Walker {
public:
    Walker(const TComponent& component, const std::function<bool(std::string_view)>& canAdd)
        : component_(component), canAdd_(canAdd) {}

    std::vector<CandidateProperty> Take() {
        Properties(PublishedObject(component_), -1, 0);
        return std::move(found_);
    }

private:
    static constexpr int MaxDepth = 32; // deeper than any class nests; a file can say anything

    void Properties(const PublishedObject& object, int parent, int depth) {
        if (depth > MaxDepth) return;
        for (const PropertyInfo& property : object.Properties()) {
            if (IsTextKind(property.kind)) {
                if (canAdd_(property.name))
                    Add(property.name, parent,
                        {property.kind, std::string(TypeKindName(property.kind).substr(2)),
                         TPropertyDescription::pdOrdinal});
            } else if (property.kind == TTypeKind::tkClass && canAdd_(property.name)) {
                if (const auto value = object.Object(property)) Object(property.name, *value, parent, depth);
            }
        }
    }

    void Object(const std::string& name, const PublishedObject& value, int parent, int depth) {
        // A component that belongs to another owner is never looked into; that of a form may name others of the
        // form in a circle, so each is looked into once.
        if (const TComponent* other = value.Component())
            if (other->Owner() != &component_ || !entered_.insert(other).second) return;
        const int node = Add(name, parent, DataOf(value));
        const TPropertyDescription description = found_[std::size_t(node)].data.Description;
        Properties(value, node, depth + 1);
        if (description == TPropertyDescription::pdCollection) Items(value, node, depth + 1);
        const bool leaf = value.Is("TFont") || description == TPropertyDescription::pdTStrings;
        if (!leaf && found_.size() == std::size_t(node) + 1) found_.pop_back();
    }

    void Items(const PublishedObject& collection, int parent, int depth) {
        std::size_t index = 0;
        for (const PublishedObject& item : collection.Items()) {
            const int node =
                Add(std::to_string(index++) + " - " + item.ClassName(), parent,
                    {TTypeKind::tkClass, item.ClassName(), TPropertyDescription::pdCollectionItem});
            Properties(item, node, depth + 1);
        }
    }

    static TPropertyData DataOf(const PublishedObject& value) {
        switch (value.ObjectKind()) {
        case Kind::Strings:
            return {TTypeKind::tkClass, "TStrings", TPropertyDescription::pdTStrings};
        case Kind::Collection:
            return {TTypeKind::tkClass, value.ClassName(), TPropertyDescription::pdCollection};
        default:
            return {TTypeKind::tkClass, value.ClassName(), TPropertyDescription::pdPersistent};
        }
    }

    int Add(std::string text, int parent, TPropertyData data) {
        found_.push_back({std::move(text), parent, std::move(data)});
        return int(found_.size()) - 1;
    }

    const TComponent& component_;
    const std::function<bool(std::string_view)>& canAdd_;
    std::unordered_set<const TComponent*> entered_;
    std::vector<CandidateProperty> found_;
};

} // namespace

std::vector<CandidateProperty> CandidateProperties(const TComponent& component,
                                                   const std::function<bool(std::string_view)>& canAdd) {
    return Walker(component, canAdd).Take();
}

} // namespace glotta
