#include "ide/UnitSourceEditing.h"

#include "ide/EditorEdits.h"
#include "ide/UnitEdits.h"
#include "ide/UnitEditsTokens.h"
#include "platform/Text.h"
#include "runtime/CustomLang.h"
#include "vcl/ClassCatalogue.h"

#include <algorithm>

namespace glotta {

namespace {

// The event's type name, empty when the object has no such event. The class of a root is often known to its
// unit alone; a form's events are then those of every form.
std::string EventType(TComponent& instance, const std::string& event) {
    const auto typeOf = [](const auto& property) {
        return property && !ClassCatalogue::PascalParameters(property->typeName).empty() ? property->typeName
                                                                                         : std::string();
    };
    std::string type = typeOf(instance.FindProperty(event));
    if (!type.empty() || instance.Owner()) return type;
    const ClassCatalogue& catalogue = instance.Tree().Catalogue();
    const bool known = instance.InheritsFrom("TDataModule") || instance.InheritsFrom("TCustomFrame");
    return known ? type : typeOf(catalogue.FindProperty("TForm", event));
}

// "Sender: TObject; var Action: TCloseAction" gives "Sender, Action".
std::string ArgumentList(std::string_view pascalParameters) {
    std::string names;
    while (!pascalParameters.empty()) {
        const std::size_t end = std::min(pascalParameters.find(';'), pascalParameters.size());
        std::string_view group = Trim(pascalParameters.substr(0, pascalParameters.substr(0, end).find(':')));
        for (std::string_view modifier : {"const ", "var ", "out "})
            if (StartsWithText(group, modifier)) group = Trim(group.substr(modifier.size()));
        names += (names.empty() ? "" : ", ") + std::string(group);
        pascalParameters.remove_prefix(std::min(end + 1, pascalParameters.size()));
    }
    return names;
}

std::string Join(const std::vector<std::string>& names) {
    std::string joined;
    for (const std::string& name : names)
        joined += (joined.empty() ? "" : ", ") + name;
    return joined;
}

bool IsCppUnit(const std::string& fileName) {
    return fileName.size() > 4 &&
           StartsWithText(std::string_view(fileName).substr(fileName.size() - 4), ".cpp");
}

bool Mentions(std::string_view text, const MethodBody& body, std::string_view name, bool isCpp) {
    const std::string_view code = text.substr(body.open, body.close - body.open);
    for (const Token& token : Tokenize(code, isCpp)) {
        const std::string_view word = code.substr(token.begin, token.end - token.begin);
        if (token.kind == TokenKind::Identifier && (isCpp ? word == name : SameText(word, name))) return true;
    }
    return false;
}

// A form or component whose event is hooked to a method of the unit.
struct Hook {
    IdeServices& ide;
    const std::string& formName;
    IDesigner& designer;
    TComponent& instance;
    std::string event; // without "On"
};

// Makes the method begin with a call of the former handler, unless it is there: the event called that one so
// far, and what it does must go on being done.
void CallFormer(const Hook& hook, const std::string& method, const std::string& former) {
    IOTASourceEditor* editor = hook.ide.GetSourceEditorFromFormName(hook.formName);
    if (!editor) return;
    const bool isCpp = IsCppUnit(editor->FileName());
    if (isCpp ? former == method : SameText(former, method)) return;
    const std::string text = hook.ide.GetUnitSource(editor->FileName());
    const std::string& className = hook.designer.Root().ClassName();
    const std::optional<MethodBody> body = FindMethodBody(text, isCpp, className, method);
    if (!body || Mentions(text, *body, former, isCpp)) return;
    const std::optional<MethodBody> formerBody = FindMethodBody(text, isCpp, className, former);
    // A former handler that calls the new one already would call itself without end; one that an ancestor
    // form has is called like its own.
    const bool inherited = hook.designer.Root().Node().kind == FormNodeKind::Inherited;
    if (formerBody ? Mentions(text, *formerBody, method, isCpp) : !inherited) return;
    const std::string arguments =
        body->parameters.empty()
            ? ArgumentList(ClassCatalogue::PascalParameters(EventType(hook.instance, "On" + hook.event)))
            : Join(body->parameters);
    const std::string call = "  " + former + "(" + arguments + ");";
    WriteEdits(*editor, text, {UnitTokens(text, isCpp).LineBehind(body->open, call)});
}

// Creates the handler and hooks the event to it.
void HookMethod(const Hook& hook, const std::string& methodName) {
    const std::string former = hook.instance.GetMethodProp("On" + hook.event);
    const std::string method = DoCreateMethod(hook.designer, hook.instance, hook.event, methodName);
    if (!former.empty()) CallFormer(hook, method, former);
}

void Finish(IDesigner& designer, const std::string& method, bool show) {
    if (show) designer.ShowMethod(method);
    designer.Modified();
}

} // namespace

std::string DoCreateMethod(IDesigner& designer, TComponent& instance, const std::string& eventName,
                           const std::string& methodName) {
    const std::string event = "On" + eventName;
    const std::string type = EventType(instance, event);
    if (type.empty()) return designer.CreateMethod(methodName, {});
    const std::string method =
        designer.CreateMethod(methodName, {std::string(ClassCatalogue::PascalParameters(type)),
                                           std::string(ClassCatalogue::CppParameters(type))});
    instance.SetMethodProp(event, method);
    return method;
}

void InsertFormEvent(IdeServices& ide, const std::string& formName, const std::string& methodName,
                     bool show) {
    IDesigner* designer = ide.GetDesignerByFormName(formName);
    if (!designer) return;
    TComponent& root = designer->Root();
    // A frame is created without an event: a handler there would never run. Its language-change handler
    // remains.
    if (root.InheritsFrom("TCustomFrame")) return;
    HookMethod({ide, formName, *designer, root, "Create"},
               root.InheritsFrom("TDataModule") ? "DatamoduleCreate" : methodName);
    Finish(*designer, methodName, show);
}

void InsertGlottaEvent(IdeServices& ide, const std::string& formName, const std::string& methodSuffix,
                       bool show) {
    IDesigner* designer = ide.GetDesignerByFormName(formName);
    if (!designer) return;
    const std::vector<TComponent*>& owned = designer->Root().Components();
    const auto component = std::find_if(owned.begin(), owned.end(), [](const TComponent* candidate) {
        return dynamic_cast<const TgxCustomLang*>(candidate) != nullptr;
    });
    if (component == owned.end()) return;
    designer->SelectComponent(*component);
    HookMethod({ide, formName, *designer, **component, "ChangeLanguage"},
               (*component)->Name() + methodSuffix);
    Finish(*designer, methodSuffix, show);
}

void InsertFormMethod(IdeServices& ide, const std::string& formName, const std::string& methodName,
                      bool show) {
    IDesigner* designer = ide.GetDesignerByFormName(formName);
    if (!designer) return;
    DoCreateMethod(*designer, designer->Root(), methodName, methodName);
    Finish(*designer, methodName, show);
}

} // namespace glotta
