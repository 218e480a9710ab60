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
    std::string formFile;
};
// By the form's class; nothing when no form of the project has it.
using FindAncestorForm = std::function<std::optional<AncestorForm>(const std::string& formClass)>;

// The names of all components of a form, but for those within frames: a frame has its own.
std::vector<std::string> ComponentNames(const FormNode& root);

class FormHeritage {
public:
    FormHeritage(const FormUnit& unit, const FormNode& root, FindAncestorForm find);

    // The library class at the form's origin: "TForm", "TDataModule", "TFrame" or another that the catalogue
    // knows. Where the units do not tell, what the form file shows of it.
    const std::string& RootBase() const { return rootBase_; }
    const std::vector<AncestorForm>& Ancestors() const { return ancestors_; } // nearest first
    // The class of the nearest ancestor form that declares the method, empty when none does.
    std::string DeclaringAncestor(const std::string& method) const;

private:
    std::vector<AncestorForm> ancestors_;
    std::string rootBase_;
};

} // namespace glotta
