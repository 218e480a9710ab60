#include "workbench/PropertyValues.h"

#include "platform/Error.h"
#include "platform/Text.h"

#include <charconv>
#include <unordered_map>
#include <unordered_set>

namespace glotta {
namespace {

bool IsString(TTypeKind kind) {
    return kind == TTypeKind::tkString || kind == TTypeKind::tkLString || kind == TTypeKind::tkWString;
}

bool IsSimple(const PropertyInfo& info) {
    switch (info.kind) {
    case TTypeKind::tkInteger:
    case TTypeKind::tkInt64:
    case TTypeKind::tkEnumeration:
    case TTypeKind::tkFloat:
    case TTypeKind::tkMethod:
        return true;
    default:
        return IsString(info.kind);
    }
}

std::string Joined(const std::vector<FormValue>& items) {
    std::string text;
    for (const FormValue& item : items)
        text += (text.empty() ? "" : ",") + item.text;
    return text;
}

std::string TextOf(const FormValue& value) {
    switch (value.kind) {
    case FormValueKind::Nil: return "nil";
    case FormValueKind::False: return "False";
    case FormValueKind::True: return "True";
    case FormValueKind::Integer: return std::to_string(value.integer);
    case FormValueKind::Set: return "[" + Joined(value.items) + "]";
    case FormValueKind::Binary: return "(binary data)";
    case FormValueKind::List: return value.IsStringList() ? "(" + std::to_string(value.items.size()) + " lines)" : "(list)";
    case FormValueKind::Collection: return "(" + std::to_string(value.collection.size()) + " items)";
    default: return value.text;
    }
}

bool IsIdentifier(std::string_view text) {
    const auto starts = [](char c) { return std::isalpha(static_cast<unsigned char>(c)) || c == '_'; };
    return !text.empty() && starts(text.front()) && std::all_of(text.begin(), text.end(), [&](char c) {
        return starts(c) || std::isdigit(static_cast<unsigned char>(c)) || c == '.';
    });
}

bool IsBoolean(const PropertyInfo& info, const FormProperty* stored) {
    return SameText(info.typeName, "Boolean") ||
           (stored && (stored->value.kind == FormValueKind::True || stored->value.kind == FormValueKind::False));
}

std::optional<std::int64_t> ToInteger(const std::string& text) {
    std::int64_t value = 0;
    const bool hex = text.starts_with("$");
    const char* begin = text.data() + (hex ? 1 : 0);
    const char* end = text.data() + text.size();
    const auto [stop, failure] = std::from_chars(begin, end, value, hex ? 16 : 10);
    if (failure != std::errc() || stop != end || begin == end) return std::nullopt;
    return value;
}

[[noreturn]] void Refuse(const PropertyInfo& info, const std::string& text) {
    throw Error("'" + text + "' is not a valid value for " + info.name);
}

FormValue ValueOf(const PropertyInfo& info, const FormProperty* stored, const std::string& text) {
    if (IsString(info.kind)) return FormValue::String(text);
    if (IsBoolean(info, stored)) {
        if (SameText(text, "True") || SameText(text, "False")) return FormValue::Bool(SameText(text, "True"));
        Refuse(info, text);
    }
    if (info.kind == TTypeKind::tkFloat) {
        double number = 0;
        const auto [stop, failure] = std::from_chars(text.data(), text.data() + text.size(), number);
        if (failure != std::errc() || stop != text.data() + text.size()) Refuse(info, text);
        FormValue value;
        value.kind = FormValueKind::Float;
        value.text = text.find('.') == std::string::npos ? text + ".000000000000000000" : text;
        return value;
    }
    if (const auto number = ToInteger(text); number && info.kind != TTypeKind::tkEnumeration)
        return FormValue::Integer(*number);
    const bool isPlainNumber = info.kind != TTypeKind::tkEnumeration && !info.typeName.starts_with('T');
    if (isPlainNumber || !IsIdentifier(text)) Refuse(info, text);
    return FormValue::Identifier(text);
}

void SetProperty(TComponent& component, const PropertyInfo& info, const std::string& text) {
    const FormProperty* stored = component.Node().Find(info.name);
    if (text.empty() && !IsString(info.kind))
        component.Node().Remove(info.name);
    else
        component.Node().Set(info.name, ValueOf(info, stored, text));
}

MethodType MethodTypeOf(const PropertyInfo& info) {
    return {std::string(ClassCatalogue::PascalParameters(info.typeName)),
            std::string(ClassCatalogue::CppParameters(info.typeName))};
}

void SetEvent(PlainFormEditor& form, TComponent& component, const PropertyInfo& info, const std::string& method) {
    component.SetMethodProp(info.name,
                            method.empty() ? method : form.Designer().CreateMethod(method, MethodTypeOf(info)));
}

// What a registered editor says of its property goes before what its value says.
void AskEditor(PropertyRow& row, std::unique_ptr<IProperty> editor) {
    row.attributes = editor->GetAttributes();
    row.text = editor->GetValue();
    row.editable = !(row.attributes & paReadOnly);
    row.hasChoices = row.attributes & paValueList;
    row.editors.push_back(std::move(editor));
}

std::vector<PropertyRow> RowsOf(TComponent& component, bool events, const EditorOf& editorOf) {
    std::vector<PropertyRow> rows;
    if (!events) {
        PropertyRow name;
        name.info = {"Name", "TComponentName", TTypeKind::tkLString};
        name.text = component.Name();
        name.stored = name.editable = true;
        rows.push_back(std::move(name));
    }
    for (PropertyInfo& info : component.PublishedProperties()) {
        if ((info.kind == TTypeKind::tkMethod) != events || SameText(info.name, "Name")) continue;
        PropertyRow row;
        row.info = std::move(info);
        const FormProperty* stored = component.Node().Find(row.info.name);
        row.stored = stored || component.Node().Find(row.info.name + ".Strings");
        if (stored) row.text = TextOf(stored->value);
        row.editable = IsSimple(row.info);
        row.hasChoices = IsBoolean(row.info, stored);
        if (auto editor = editorOf(component, row.info)) AskEditor(row, std::move(editor));
        rows.push_back(std::move(row));
    }
    return rows;
}

// A name is one component's alone.
bool IsForMany(const PropertyRow& row) {
    return row.info.name != "Name" && (row.editors.empty() || row.attributes & paMultiSelect);
}

// Keeps what the rows of one more component have in common with these.
void Join(std::vector<PropertyRow>& rows, std::vector<PropertyRow> others) {
    std::unordered_map<std::string_view, PropertyRow*, TextHash, TextEqual> byName;
    for (PropertyRow& other : others)
        byName.emplace(other.info.name, &other);
    std::erase_if(rows, [&](PropertyRow& row) {
        const auto found = byName.find(row.info.name);
        if (found == byName.end()) return true;
        PropertyRow& other = *found->second;
        if (!IsForMany(other) || other.info.kind != row.info.kind || other.editors.empty() != row.editors.empty())
            return true;
        if (other.text != row.text) row.text.clear();
        row.stored = row.stored || other.stored;
        row.editable = row.editable && other.editable;
        row.hasChoices = row.hasChoices && other.hasChoices;
        std::move(other.editors.begin(), other.editors.end(), std::back_inserter(row.editors));
        return false;
    });
}

} // namespace

std::vector<PropertyRow> PropertyRows(const IDesignerSelections& components, bool events, const EditorOf& editorOf) {
    if (components.empty()) return {};
    std::vector<PropertyRow> rows = RowsOf(*components.front(), events, editorOf);
    const bool hasName = components.size() == 1 && !events;
    if (components.size() > 1) std::erase_if(rows, [](const PropertyRow& row) { return !IsForMany(row); });
    for (std::size_t i = 1; i < components.size(); ++i)
        Join(rows, RowsOf(*components[i], events, editorOf));
    std::stable_sort(rows.begin() + (hasName ? 1 : 0), rows.end(),
                     [](const PropertyRow& a, const PropertyRow& b) { return CompareText(a.info.name, b.info.name) < 0; });
    return rows;
}

std::vector<std::string> Choices(const PropertyRow& row) {
    if (row.editors.empty()) return row.hasChoices ? std::vector<std::string>{"False", "True"} : std::vector<std::string>();
    std::vector<std::string> choices = row.editors.front()->GetValues();
    for (std::size_t i = 1; i < row.editors.size(); ++i) {
        const std::vector<std::string> others = row.editors[i]->GetValues();
        const std::unordered_set<std::string> known(others.begin(), others.end());
        std::erase_if(choices, [&](const std::string& choice) { return !known.contains(choice); });
    }
    if (row.attributes & paSortList)
        std::sort(choices.begin(), choices.end(),
                  [](const std::string& a, const std::string& b) { return CompareText(a, b) < 0; });
    return choices;
}

void EnterValue(PlainFormEditor& form, const IDesignerSelections& components, const PropertyRow& row,
                const std::string& text) {
    const PropertyInfo& info = row.info;
    form.Step([&] {
        for (const auto& editor : row.editors)
            editor->SetValue(text);
        if (!row.editors.empty()) return;
        for (TComponent* component : components) {
            if (info.kind == TTypeKind::tkMethod)
                SetEvent(form, *component, info, text);
            else if (info.name == "Name")
                form.Designer().RenameComponent(*component, text);
            else
                SetProperty(*component, info, text);
        }
    });
}

std::string EventMethod(PlainFormEditor& form, const IDesignerSelections& components, const PropertyInfo& info) {
    TComponent& first = *components.front();
    if (std::string method = first.GetMethodProp(info.name); !method.empty()) return method;
    const std::string event = info.name.starts_with("On") ? info.name.substr(2) : info.name;
    const bool isRoot = &first == &form.Tree().Root();
    form.Step([&] {
        for (TComponent* component : components)
            SetEvent(form, *component, info, (isRoot ? "Form" : first.Name()) + event);
    });
    return first.GetMethodProp(info.name);
}

std::optional<PropertyInfo> DefaultEvent(const TComponent& component) {
    for (const char* name : {"OnClick", "OnChange", "OnExecute", "OnCreate", "OnTimer"})
        if (auto info = component.FindProperty(name)) return info;
    return {};
}

} // namespace glotta
