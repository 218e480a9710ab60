#include "host/FormHeritage.h"

#include "platform/Error.h"
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

// "Sender, Key" of "TObject *Sender, WORD &Key".
std::string Arguments(const std::string& cppParameters) {
    std::string result;
    for (std::size_t begin = 0; begin < cppParameters.size();) {
        const std::size_t end = std::min(cppParameters.find(',', begin), cppParameters.size());
        const std::string parameter(Trim(std::string_view(cppParameters).substr(begin, end - begin)));
        result += (result.empty() ? "" : ", ") + parameter.substr(parameter.find_last_of(" *&") + 1);
        begin = end + 1;
    }
    return result;
}

} // namespace

FormHeritage::FormHeritage(const FormUnit& unit, const FormNode& root, FindAncestorForm find)
    : isCpp_(unit.IsCpp()) {
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

bool FormHeritage::HasComponent(std::string_view name) {
    if (!names_) {
        names_.emplace();
        for (const AncestorForm& form : ancestors_) {
            try {
                CollectNames(FormFile::Parse(form.formBytes, form.formFile).Root(), *names_);
            } catch (const Error&) {
                // Its own module tells of a damaged form; its names then come from nowhere.
            }
        }
    }
    return std::any_of(names_->begin(), names_->end(),
                       [&](const std::string& used) { return SameText(used, name); });
}

std::string FormHeritage::InheritedCall(const std::string& method, const MethodType& type) const {
    for (const AncestorForm& form : ancestors_) {
        const std::string declared =
            FormUnit::FindMethod(form.isCpp, form.declaration, form.formClass, method);
        if (declared.empty()) continue;
        return isCpp_ ? form.formClass + "::" + declared + "(" + Arguments(type.cppParameters) + ");"
                      : "inherited;";
    }
    return {};
}

} // namespace glotta
