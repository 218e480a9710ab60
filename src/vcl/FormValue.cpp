#include "vcl/FormFile.h"

namespace glotta {

namespace {
FormValue Make(FormValueKind kind, std::string text = {}) {
    FormValue value;
    value.kind = kind;
    value.text = std::move(text);
    return value;
}
} // namespace

FormValue FormValue::String(std::string text) {
    return Make(FormValueKind::String, std::move(text));
}
FormValue FormValue::Identifier(std::string name) {
    return Make(FormValueKind::Identifier, std::move(name));
}
FormValue FormValue::Bool(bool value) {
    return Make(value ? FormValueKind::True : FormValueKind::False);
}

FormValue FormValue::Integer(std::int64_t value) {
    FormValue result = Make(FormValueKind::Integer);
    result.integer = value;
    return result;
}

FormValue FormValue::StringListOf(const std::vector<std::string>& lines) {
    FormValue result = Make(FormValueKind::List);
    result.items.reserve(lines.size());
    for (const std::string& line : lines)
        result.items.push_back(String(line));
    return result;
}

bool FormValue::IsStringList() const {
    return kind == FormValueKind::List && std::all_of(items.begin(), items.end(), [](const FormValue& item) {
               return item.kind == FormValueKind::String;
           });
}

std::vector<std::string> FormValue::Strings() const {
    std::vector<std::string> lines;
    lines.reserve(items.size());
    for (const FormValue& item : items)
        lines.push_back(item.text);
    return lines;
}

bool FormValue::operator==(const FormValue& other) const {
    return kind == other.kind && integer == other.integer && text == other.text && items == other.items &&
           collection == other.collection;
}

} // namespace glotta
