#include "host/FormUnit.h"

#include "host/PragmaLink.h"
#include "platform/Error.h"

namespace glotta {

// Edits of one text that follow each other, each computed on what the ones before leave.
class FormUnit::Steps {
public:
    explicit Steps(const std::string& text) : text_(text) {}
    const std::string& Text() const { return text_; }
    void Add(TextEdits edits) {
        text_ = ApplyEdits(text_, edits);
        groups_.push_back(std::move(edits));
    }
    void ApplyTo(PlainSourceEditor& editor) { editor.Apply(std::move(groups_)); }

private:
    std::string text_;
    std::vector<TextEdits> groups_;
};

namespace {

TextEdits AddInheritedCall(std::string_view text, bool isCpp, const std::string& formClass,
                           const std::string& name, const std::string& ancestor) {
    const auto body = FindMethodBody(text, isCpp, formClass, name);
    if (!body) throw Error("the new method " + formClass + "." + name + " has no body");
    std::string call = "\r\n  inherited;";
    if (isCpp) {
        call = "\r\n    " + ancestor + "::" + name + "(";
        for (const std::string& parameter : body->parameters)
            call += (&parameter == body->parameters.data() ? "" : ", ") + parameter;
        call += ");";
    }
    return {{body->open, body->open, std::move(call)}};
}

} // namespace

const PlainSourceEditor& FormUnit::DeclaringEditor() const {
    if (!isCpp_) return source_;
    if (!header_) throw Error(source_.FileName() + ": the unit's header is missing");
    return *header_;
}

std::string FormUnit::ClassParent(const std::string& formClass) const {
    return isCpp_ && !header_ ? std::string() : ClassParent(isCpp_, Declaration(), formClass);
}

std::string FormUnit::ClassParent(bool isCpp, std::string_view declaration, const std::string& formClass) {
    return isCpp ? cpp::ClassParent(declaration, formClass) : pascal::ClassParent(declaration, formClass);
}

void FormUnit::AddComponent(const std::string& formClass, const std::string& name,
                            const std::string& className, const std::string& unit) {
    Steps declaration(Declaration());
    declaration.Add(isCpp_ ? cpp::AddMember(declaration.Text(), formClass, name, className)
                           : pascal::AddField(declaration.Text(), formClass, name, className));
    AddUnit(unit, std::move(declaration));
}

void FormUnit::AddUnit(const std::string& unit) {
    AddUnit(unit, Steps(Declaration()));
}

void FormUnit::AddUnit(const std::string& unit, Steps declaration) {
    if (!isCpp_) {
        declaration.Add(pascal::AddInterfaceUses(declaration.Text(), unit));
        return declaration.ApplyTo(source_);
    }
    declaration.Add(cpp::AddInclude(declaration.Text(), unit + ".hpp", false));
    Steps source(source_.Buffer().Text());
    source.Add(AddPragmaLink(source.Text(), unit));
    declaration.ApplyTo(DeclaringEditor());
    source.ApplyTo(source_);
}

void FormUnit::RemoveField(const std::string& formClass, const std::string& name) {
    DeclaringEditor().Apply({isCpp_ ? cpp::RemoveMember(Declaration(), formClass, name)
                                    : pascal::RemoveOrRenameField(Declaration(), formClass, name, {})});
}

void FormUnit::RenameField(const std::string& formClass, const std::string& name,
                           const std::string& newName) {
    DeclaringEditor().Apply({isCpp_ ? cpp::RenameMember(Declaration(), formClass, name, newName)
                                    : pascal::RemoveOrRenameField(Declaration(), formClass, name, newName)});
}

void FormUnit::RenameForm(const FormNames& from, const FormNames& to) {
    for (PlainSourceEditor* editor : {&source_, header_})
        if (editor) editor->Apply({glotta::RenameForm(editor->Buffer().Text(), isCpp_, from, to)});
}

bool FormUnit::Declares(const std::string& formClass, const std::string& member) const {
    return DeclaresMember(Declaration(), isCpp_, formClass, member);
}

bool FormUnit::Mentions(const FormNames& names) const {
    for (const PlainSourceEditor* editor : {&source_, header_})
        for (const std::string& name : {names.name, names.className})
            if (editor && glotta::Mentions(editor->Buffer().Text(), isCpp_, name)) return true;
    return false;
}

std::string FormUnit::FindMethod(const std::string& formClass, const std::string& name) const {
    return isCpp_ && !header_ ? std::string() : FindMethod(isCpp_, Declaration(), formClass, name);
}

std::string FormUnit::FindMethod(bool isCpp, std::string_view declaration, const std::string& formClass,
                                 const std::string& name) {
    return isCpp ? cpp::FindMethod(declaration, formClass, name)
                 : pascal::FindMethod(declaration, formClass, name);
}

void FormUnit::AddMethod(const std::string& formClass, const std::string& name, const MethodType& type,
                         const std::string& ancestor) {
    Steps source(source_.Buffer().Text());
    TextEdits declaration;
    if (isCpp_) {
        declaration = cpp::AddMethodDeclaration(Declaration(), formClass, name, type.cppParameters);
        source.Add(cpp::AddMethodBody(source.Text(), formClass, name, type.cppParameters));
    } else {
        source.Add(pascal::AddMethod(source.Text(), formClass, name, type.pascalParameters));
    }
    if (!ancestor.empty()) source.Add(AddInheritedCall(source.Text(), isCpp_, formClass, name, ancestor));
    if (isCpp_) DeclaringEditor().Apply({std::move(declaration)});
    source.ApplyTo(source_);
}

void FormUnit::ShowMethod(const std::string& formClass, const std::string& name) {
    const auto body = FindMethodBody(source_.Buffer().Text(), isCpp_, formClass, name);
    if (!body) return;
    const EditPos place = source_.Buffer().ByteToPos(body->open);
    source_.Show();
    source_.View().SetCursorPos({place.line + 1, 1});
    source_.View().Center(place.line);
}

} // namespace glotta
