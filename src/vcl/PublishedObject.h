// An object as run-time type information shows it: a component, a persistent object inside one, a collection
// or one of its items. The class catalogue says what is published, the form file what it holds.
#pragma once
#include "vcl/Component.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace glotta {

class PublishedObject {
public:
    enum class Kind : unsigned char { Component, Strings, Collection, Item, Persistent };

    explicit PublishedObject(const TComponent& component);

    Kind ObjectKind() const { return kind_; }
    const std::string& ClassName() const { return className_; }
    bool Is(std::string_view className) const { return catalogue_->InheritsFrom(className_, className); }
    // The component itself; nil for a component that lives and is saved inside another, which is its owner.
    const TComponent* Component() const { return component_; }

    // In the order of declaration, inherited ones first, then what only the form file tells of; a kind that
    // only the file tells of follows from the value there.
    std::vector<PropertyInfo> Properties() const;
    std::optional<PropertyInfo> FindProperty(std::string_view name) const;
    // The value of a property of the kind tkClass; nothing for nil and for what is not on this form.
    std::optional<PublishedObject> Object(const PropertyInfo& property) const;
    std::vector<PublishedObject> Items() const; // of a collection, by the form file

private:
    PublishedObject(const PublishedObject& holder, Kind kind, std::string className)
        : catalogue_(holder.catalogue_), form_(holder.form_), kind_(kind), className_(std::move(className)) {}
    std::string_view CatalogueClass() const;
    const FormProperty* Find(std::string_view name) const;
    bool HasBelow(std::string_view name) const;
    const TComponent* Resolve(std::string_view name) const;

    const ClassCatalogue* catalogue_;
    const TComponent* form_;                              // the root, whose components references name
    Kind kind_;
    std::string className_;
    const TComponent* component_ = nullptr;
    const std::vector<FormProperty>* file_ = nullptr;     // of the component or the item
    std::string prefix_;                                  // in front of its properties there, "Font."
    const std::vector<FormItem>* items_ = nullptr;        // of a collection
};

} // namespace glotta
