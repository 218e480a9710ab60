#include "host/FormHeritage.h"

#include "platform/Text.h"
#include "vcl/ClassCatalogue.h"

namespace glotta {
namespace {

constexpr int MostAncestors = 64; // units may declare classes in a circle

bool HasAny(const FormNode& node, std::initializer_list<std::string_view> properties) {
    return std::any_of(properties.begin(), properties.end(),
                       [&](std::string_view name) { return node.Find(name) != nullptr; });
}

// For a class whose origin lies outside of the project.
std::string BaseByLooks(const FormNode& root, std::string_view parent) {
    const std::string name = UpperCase(std::string(parent) + "/" + root.className);
    if (name.find("DATAMODULE") != std::string::npos) return "TDataModule";
    if (name.find("FRAME") != std::string::npos && name.find("FORM") == std::string::npos) return "TFrame";
    if (HasAny(root, {"Caption", "ClientHeight", "ClientWidth", "PixelsPerInch", "TextHeight", "BorderStyle",
                      "Position"}))
        return "TForm";
    if (HasAny(root, {"TabOrder", "TabStop", "Align"})) return "TFrame";
    return HasAny(root, {"HorizontalOffset", "VerticalOffset", "OldCreateOrder"}) ? "TDataModule" : "TForm";
}

void CollectNames(const FormNode& node, std::vector<std::string>& names) {
    for (const auto& child : node.children) {
        names.push_back(child->name);
        if (child->kind != FormNodeKind::Inline) CollectNames(*child, names);
    }
}

} // namespace

std::vector<std::string> ComponentNames(const FormNode& root) {
    std::vector<std::string> names;
    CollectNames(root, names);
    return names;
}

FormHeritage::FormHeritage(const FormUnit& unit, const FormNode& root, FindAncestorForm find) {
    const ClassCatalogue& catalogue = ClassCatalogue::BuiltIn();
    std::string parent = unit.ClassParent(root.className);
    for (int depth = 0; depth < MostAncestors && !parent.empty(); ++depth) {
        if (catalogue.Find(parent)) {
            rootBase_ = parent;
            return;
        }
        auto ancestor = find ? find(parent) : std::nullopt;
        if (!ancestor) break;
        ancestors_.push_back(std::move(*ancestor));
        const AncestorForm& form = ancestors_.back();
        parent = FormUnit::ClassParent(form.isCpp, form.declaration, form.formClass);
    }
    rootBase_ = BaseByLooks(root, parent);
}

std::string FormHeritage::DeclaringAncestor(const std::string& method) const {
    for (const AncestorForm& form : ancestors_)
        if (!FormUnit::FindMethod(form.isCpp, form.declaration, form.formClass, method).empty())
            return form.formClass;
    return {};
}

} // namespace glotta
