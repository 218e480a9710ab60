// Components of an open form: objects over the nodes of its form file, with owner, name and published
// properties.
#pragma once
#include "vcl/ClassCatalogue.h"
#include "vcl/FormFile.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace glotta {

class ComponentTree;

class TComponent {
public:
    TComponent(ComponentTree& tree, FormNode& node, TComponent* owner)
        : tree_(tree), node_(node), owner_(owner) {}
    virtual ~TComponent() = default;
    TComponent(const TComponent&) = delete;
    TComponent& operator=(const TComponent&) = delete;

    const std::string& Name() const { return node_.name; }
    void SetName(std::string name) { node_.Rename(std::move(name)); }
    const std::string& ClassName() const { return node_.className; }
    // By the catalogue, and for the root by the heritage its unit declares.
    bool InheritsFrom(std::string_view className) const;
    TComponent* Owner() const { return owner_; }
    ComponentTree& Tree() const { return tree_; }
    FormNode& Node() { return node_; }
    const FormNode& Node() const { return node_; }

    // The components it owns, in creation order: for the root all components of the form, at any depth of
    // parents (those of an inline frame belong to the frame).
    const std::vector<TComponent*>& Components() const { return owned_; }
    TComponent* FindComponent(std::string_view name) const; // ignores letter case

    // Catalogue and form file joined; the kind of a property known from the file alone follows from its
    // value.
    std::vector<PropertyInfo> PublishedProperties() const;
    std::optional<PropertyInfo> FindProperty(std::string_view name) const;

    std::string GetStrProp(std::string_view name, std::string_view missing = {}) const;
    void SetStrProp(std::string_view name, std::string value);
    std::int64_t GetOrdProp(std::string_view name, std::int64_t missing = 0) const; // integers and Booleans
    void SetOrdProp(std::string_view name, std::int64_t value);
    void SetBoolProp(std::string_view name, bool value);
    // A string-list property, kept in the file as 'Name.Strings'. An empty list is removed from the file.
    std::vector<std::string> GetStrings(std::string_view name) const;
    void SetStrings(std::string_view name, const std::vector<std::string>& lines);
    // The name of the method bound to an event, empty when none.
    std::string GetMethodProp(std::string_view event) const;
    void SetMethodProp(std::string_view event, const std::string& method);

    // Called after the tree was built, and before the form file is written.
    virtual void Loaded() {}
    virtual void BeforeWrite() {}

private:
    friend class ComponentTree;
    friend class FormSnapshot;
    friend class PublishedObject;
    std::string_view CatalogueClass() const;
    ComponentTree& tree_;
    FormNode& node_;
    TComponent* owner_;
    std::vector<TComponent*> owned_;
};

// Creates component objects by class name; a class without a factory becomes a plain TComponent.
using ComponentFactory = std::unique_ptr<TComponent> (*)(ComponentTree&, FormNode&, TComponent* owner);
void RegisterComponentClass(std::string_view className, ComponentFactory factory);

// The component objects of one form. The form file must outlive the tree.
class ComponentTree {
public:
    // `rootBase` is the class that the root's class descends from by its unit ("TForm", "TDataModule",
    // "TFrame", or an ancestor form's class), empty when not known.
    ComponentTree(FormFile& file, std::string rootBase,
                  const ClassCatalogue& catalogue = ClassCatalogue::BuiltIn());

    TComponent& Root() { return *root_; }
    const TComponent& Root() const { return *root_; }
    const ClassCatalogue& Catalogue() const { return catalogue_; }
    const std::string& RootBase() const { return rootBase_; }
    void SetRootBase(std::string rootBase) { rootBase_ = std::move(rootBase); }
    FormFile& File() { return file_; }

    // Adds a child to the root's node, owned by the root. Throws Error when `name` is taken or no identifier.
    TComponent& Create(std::string className, std::string name);
    // Takes a component other than the root off the form, with what it contains. The objects live on: undo brings them
    // back.
    void Remove(TComponent& component);
    // The name that the IDE gives: the class name without its leading T and the first free number from 1
    // ("Glotta1").
    std::string UniqueName(std::string_view className) const;

    void BeforeWrite(); // asks every component to bring its node up to date

private:
    friend class FormSnapshot;
    TComponent& Adopt(FormNode& node, TComponent* owner);
    FormFile& file_;
    const ClassCatalogue& catalogue_;
    std::string rootBase_;
    std::vector<std::unique_ptr<TComponent>> all_;    // in order of creation, those that were taken away included
    std::vector<std::unique_ptr<FormNode>> detached_; // the nodes of these
    TComponent* root_ = nullptr;
};

} // namespace glotta
