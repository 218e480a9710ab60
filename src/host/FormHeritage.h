// From which forms of the project, and from which class of the library, a form descends. What it inherits
// stays in the files of its ancestors.
#pragma once
#include "host/FormUnit.h"
#include "ide/ToolsApi.h"
#include "vcl/FormFile.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace glotta {

// A form of the project from which others descend.
struct AncestorForm {
    std::string formClass;
    bool isCpp = false;
    std::string declaration; // the text that declares the class: the unit, or its header
    std::string formBytes, formFile;
};
// By the form's class; nothing when no form of the project has it.
using FindAncestorForm = std::function<std::optional<AncestorForm>(const std::string& formClass)>;

class FormHeritage {
public:
    FormHeritage(const FormUnit& unit, const FormNode& root, FindAncestorForm find);

    // The library class at the form's origin: "TForm", "TDataModule", "TFrame" or another that the catalogue
    // knows. Where the units do not tell, what the form file shows of it.
    const std::string& RootBase() const { return rootBase_; }
    // True when an ancestor form has a component of that name.
    bool HasComponent(std::string_view name);
    // The class of the nearest ancestor form that declares the method, empty when none does.
    std::string DeclaringAncestor(const std::string& method) const;

private:
    std::vector<AncestorForm> ancestors_; // nearest first
    std::string rootBase_;
    std::optional<std::vector<std::string>> names_;
};

} // namespace glotta
