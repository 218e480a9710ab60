// The unit behind a form: where its class is declared and its methods have their bodies. Every operation
// computes all its edits before the first text changes, and does nothing to what is there already.
#pragma once
#include "host/SourceEditor.h"
#include "ide/ToolsApi.h"
#include "ide/UnitEdits.h"

#include <string>

namespace glotta {

class FormUnit {
public:
    // `header` is nil for Object Pascal, and for a C++ unit whose header is not on disk.
    FormUnit(PlainSourceEditor& source, PlainSourceEditor* header, bool isCpp)
        : source_(source), header_(header), isCpp_(isCpp) {}

    bool IsCpp() const { return isCpp_; }
    PlainSourceEditor& Source() { return source_; }

    // The text that declares the form's class: the unit, or its C++ header.
    const std::string& Declaration() const { return DeclaringEditor().Buffer().Text(); }
    std::string ClassParent(const std::string& formClass) const;
    static std::string ClassParent(bool isCpp, std::string_view declaration, const std::string& formClass);

    // The field, and the component's unit in `uses` (C++: member, #include and #pragma link).
    void AddComponent(const std::string& formClass, const std::string& name, const std::string& className,
                      const std::string& unit);
    // In `uses`, of a C++ unit as #include and #pragma link.
    void AddUnit(const std::string& unit);
    void RemoveField(const std::string& formClass, const std::string& name);
    void RenameField(const std::string& formClass, const std::string& name, const std::string& newName);

    // The form's class and variable, in unit and header.
    void RenameForm(const FormNames& from, const FormNames& to);
    bool Declares(const std::string& formClass, const std::string& member) const;
    bool Mentions(const FormNames& names) const;

    // The method as declared, empty when it is not.
    std::string FindMethod(const std::string& formClass, const std::string& name) const;
    static std::string FindMethod(bool isCpp, std::string_view declaration, const std::string& formClass,
                                  const std::string& name);
    // Declares the method with an empty body. Where the form's `ancestor` has a method of that name, which
    // would no longer be called, the body calls it, as the IDE has it.
    void AddMethod(const std::string& formClass, const std::string& name, const MethodType& type,
                   const std::string& ancestor);
    // Puts the cursor into the method's body.
    void ShowMethod(const std::string& formClass, const std::string& name);

private:
    class Steps;
    void AddUnit(const std::string& unit, Steps declaration);
    const PlainSourceEditor& DeclaringEditor() const;
    PlainSourceEditor& DeclaringEditor() {
        return const_cast<PlainSourceEditor&>(static_cast<const FormUnit*>(this)->DeclaringEditor());
    }

    PlainSourceEditor& source_;
    PlainSourceEditor* header_;
    bool isCpp_;
};

} // namespace glotta
