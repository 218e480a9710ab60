// A form's class and its global variable, renamed in a unit or in a project source.
#include "ide/UnitEdits.h"
#include "ide/UnitEditsCppStructure.h"
#include "ide/UnitEditsPascalStructure.h"
#include "platform/Text.h"

namespace glotta {
namespace {

// The code of all branches of conditional code.
class Code {
public:
    Code(std::string_view text, bool isCpp) : text_(text), isCpp_(isCpp), tokens_(Tokenize(text, isCpp)) {}

    std::size_t Count() const { return tokens_.size(); }
    const Token& At(std::size_t index) const { return tokens_[index]; }
    bool Is(std::size_t index, std::string_view word) const {
        if (index >= Count() || tokens_[index].end - tokens_[index].begin != word.size()) return false;
        const std::string_view token = text_.substr(tokens_[index].begin, word.size());
        return isCpp_ ? token == word : SameText(token, word);
    }
    bool IsName(std::size_t index, std::string_view name) const {
        return Is(index, name) && tokens_[index].kind == TokenKind::Identifier;
    }
    // Part of something else, as a field behind its record.
    bool IsMember(std::size_t index, std::string_view unit) const {
        if (index == 0 || !(Is(index - 1, ".") || Is(index - 1, "->"))) return false;
        return isCpp_ || index < 2 || unit.empty() || !IsName(index - 2, unit);
    }
    bool IsDeclared(std::size_t index, const FormNames& form) const {
        if (isCpp_) return index > 1 && Is(index - 1, "*") && IsName(index - 2, form.className);
        return Is(index + 1, ":") && IsName(index + 2, form.className);
    }

private:
    std::string_view text_;
    bool isCpp_;
    std::vector<Token> tokens_;
};

std::string LastPart(const std::string& dotted) {
    return dotted.substr(dotted.rfind('.') + 1);
}

} // namespace

TextEdits RenameForm(std::string_view text, bool isCpp, const FormNames& from, const FormNames& to) {
    const Code code(text, isCpp);
    const std::string unit = isCpp ? std::string() : LastPart(pascal::UnitName(text));
    TextEdits edits, uses;
    bool declared = false, created = false;
    const auto replace = [&](TextEdits& in, std::size_t index, const std::string& by) {
        in.push_back({code.At(index).begin, code.At(index).end, by});
    };
    for (std::size_t i = 0; i < code.Count(); ++i) {
        created = created || code.IsName(i, "CreateForm");
        if (code.IsName(i, from.className)) replace(edits, i, to.className);
        if (!code.IsName(i, from.name) || code.IsMember(i, unit)) continue;
        declared = declared || code.IsDeclared(i, from);
        replace(uses, i, to.name);
    }
    // Elsewhere the name means something else: a frame has no variable.
    if (declared || (created && !edits.empty()))
        edits.insert(edits.end(), uses.begin(), uses.end());
    return edits;
}

bool Mentions(std::string_view text, bool isCpp, std::string_view name) {
    const Code code(text, isCpp);
    for (std::size_t i = 0; i < code.Count(); ++i)
        if (code.IsName(i, name) && !code.IsMember(i, {})) return true;
    return false;
}

bool DeclaresMember(std::string_view text, bool isCpp, std::string_view className, std::string_view name) {
    if (!isCpp) {
        const pascal::UnitStructure unit(text);
        const auto* type = unit.FindClass(className);
        return type && !unit.FindDeclared(*type, name, false).empty();
    }
    const cpp::CppStructure unit(text);
    const cpp::CppStructure::Class type = unit.FindClass(className);
    if (type.name == cpp::CppStructure::None) return false;
    for (const auto& member : unit.Members(type))
        if (unit.Tokens()[member.name] == name) return true;
    return false;
}

} // namespace glotta
