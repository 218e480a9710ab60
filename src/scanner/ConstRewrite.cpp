#include "scanner/ConstRewrite.h"

#include "ide/UnitEdits.h"
#include "scanner/ReplacementText.h"

#include <algorithm>
#include <map>

namespace glotta {

namespace {

constexpr std::size_t None = UnitTokens::None;

// Types of which a look-up's result is assignable and that a component's text survives in.
bool IsStringType(std::string_view type) {
    for (std::string_view known : {"string", "AnsiString", "WideString", "UnicodeString"})
        if (SameText(type, known)) return true;
    return false;
}

// A compiler refuses longer pieces between quotes.
constexpr unsigned PieceLimit = 250;

std::string_view LineAt(const UnitTokens& tokens, std::size_t place) {
    const std::string_view rest = tokens.Text().substr(place);
    return rest.substr(0, rest.find_first_of("\r\n"));
}

} // namespace

std::string PascalLiteral(std::string_view value) {
    std::string literal = "'";
    unsigned length = 0;
    for (std::size_t at = 0; at < value.size();) {
        if (value.substr(at, 2) == "\r\n") {
            literal += "'#13#10 + \t'";
            length = 0;
            at += 2;
            continue;
        }
        const std::size_t begin = at;
        const char32_t character = NextChar(value, at);
        if (length >= PieceLimit) {
            literal += "' + '";
            length = 0;
        }
        ++length;
        if (character < 32)
            literal += "'#" + std::to_string(static_cast<unsigned>(character)) + "'";
        else if (character == '\'')
            literal += "''";
        else
            literal += value.substr(begin, at - begin);
    }
    return literal + "'";
}

ConstRewrite::ConstRewrite(std::string_view text, const CallPlaces& places, std::string_view formClass)
    : tokens_(text, false), places_(places), assignedHere_(!formClass.empty()), visibleEnd_(text.size()),
      updateStrings_(None) {
    contexts_.Add(tokens_);
    if (assignedHere_) {
        if (const auto body = FindMethodBody(text, false, formClass, "UpdateStrings"))
            updateStrings_ = body->open;
        return;
    }
    if (!tokens_.Is(0, "unit")) visibleEnd_ = 0; // nothing can use a program
    for (std::size_t i = 0; i < tokens_.Count(); ++i)
        if (tokens_.Is(i, "implementation")) {
            visibleEnd_ = tokens_.Begin(i);
            break;
        }
}

// Finds the declaration around the literal expression; the result is what speaks against it.
std::string ConstRewrite::Find(const FoundConstant& constant, Declaration& declaration) const {
    const std::size_t value = tokens_.IndexAt(constant.begin);
    if (value < 3 || value >= tokens_.Count() || tokens_.Begin(value) != constant.begin)
        return "in a branch of conditional code that was not followed";
    const std::string_view before = tokens_[value - 1];
    if (before == "(" || before == "," || before == ":") return "element of an array or record constant";
    declaration.semicolon = tokens_.IndexAt(constant.end);
    if (before != "=" || !tokens_.IsSymbol(declaration.semicolon, ";")) return "part of a larger expression";
    declaration.name = value - 2;
    if (tokens_.IsSymbol(value - 3, ":")) {
        declaration.type = std::string(tokens_[value - 2]);
        declaration.name = value >= 4 ? value - 4 : None;
    }
    if (tokens_.IsSymbol(value - 2, "]") || !tokens_.IsWord(declaration.name) ||
        !(declaration.type.empty() || IsStringType(declaration.type)))
        return "its declared type is not a string type";
    if (!constant.name.empty() && !SameText(constant.name, tokens_[declaration.name]))
        return "declared under another name";
    const std::size_t begin = tokens_.Begin(declaration.name), end = tokens_.End(declaration.semicolon);
    for (const Token& directive : tokens_.Directives())
        if (directive.begin >= begin && directive.begin < end)
            return "a directive stands inside the declaration";
    return {};
}

std::string ConstRewrite::WhyNotPlace(std::size_t place) const {
    const auto& sections = places_.ConstSections();
    const auto section =
        std::find_if(sections.begin(), sections.end(), [&](const CallPlaces::ConstSection& candidate) {
            return candidate.begin <= place && place < candidate.end;
        });
    if (section == sections.end()) return "not in a const section";
    if (section->inRoutine) return "local to a routine";
    if (section->inClass) return "constant of a class";
    if (!assignedHere_ && place >= visibleEnd_) return "not visible to the unit that would assign it";
    if (assignedHere_ && updateStrings_ != None && place > updateStrings_)
        return "declared behind UpdateStrings";
    return {};
}

std::string ConstRewrite::WhyNotConst(const FoundConstant& constant, const ConstantContexts* others) const {
    Declaration declaration;
    std::string reason = Find(constant, declaration);
    if (reason.empty()) reason = WhyNotPlace(tokens_.Begin(declaration.name));
    if (!reason.empty()) return reason;
    const std::string_view name = tokens_[declaration.name];
    if (TrimRight(LineAt(tokens_, tokens_.End(declaration.semicolon))).ends_with(LocalizedComment))
        return "localized already";
    if (declaration.type.empty() && CharCount(constant.value) == 1)
        return "one character, so its type is Char";
    if (contexts_.Declared(name) > 1) return "declared more than once";
    reason = contexts_.WhyConstant(name);
    return reason.empty() && others ? std::string(others->WhyConstant(name)) : reason;
}

TextEdits ConstRewrite::Rewrite(const std::vector<FoundConstant>& constants,
                                const SettingsValues& settings) const {
    std::map<std::size_t, std::pair<Declaration, const FoundConstant*>> byName;
    for (const FoundConstant& constant : constants) {
        Declaration declaration;
        if (Find(constant, declaration).empty()) byName.try_emplace(declaration.name, declaration, &constant);
    }
    TextEdits edits;
    for (const auto& [name, found] : byName)
        edits.push_back(
            RewriteOne(found.first, *found.second, settings, byName.contains(found.first.semicolon + 1)));
    return edits;
}

TextEdit ConstRewrite::RewriteOne(const Declaration& declaration, const FoundConstant& constant,
                                  const SettingsValues& settings, bool nextIsRewritten) const {
    const std::string_view text = tokens_.Text();
    const std::size_t nameBegin = tokens_.Begin(declaration.name);
    std::size_t begin = nameBegin, end = tokens_.End(declaration.semicolon);
    std::string lines;
    while (begin > 0 && (text[begin - 1] == ' ' || text[begin - 1] == '\t'))
        --begin;
    if (!tokens_.FirstOnLine(nameBegin)) lines = "\r\n";
    for (const Token& comment : tokens_.Comments())
        if (comment.begin > nameBegin && comment.begin < end)
            lines += "\t" + std::string(TrimRight(text.substr(comment.begin, comment.end - comment.begin))) +
                     "\r\n";
    lines += "\t" + std::string(tokens_[declaration.name]) + ": " +
             (declaration.type.empty() ? "string" : declaration.type) + " = ";
    if (!settings.EmptyConstsValues)
        lines += PascalLiteral(constant.value);
    else if (settings.NoCommentsInSources)
        lines += "''";
    else
        lines += "'' (* '" + CommentText(constant.value, PascalFlavour, settings.CommentsLength) + "' *)";
    lines += ";";
    // Comments behind the declaration stay there. The mark runs to the line's end, so code that follows on the line
    // moves to the next, and so does a comment that goes on there.
    const std::size_t rest = tokens_.RestOfLine(end);
    if (rest == text.size() || text[rest] == '\r' || text[rest] == '\n')
        return {begin, rest, lines.append(text, end, rest - end).append(LocalizedComment)};
    lines += LocalizedComment;
    std::size_t next = end;
    while (next < text.size() && (text[next] == ' ' || text[next] == '\t'))
        ++next;
    if (nextIsRewritten && next == tokens_.Begin(declaration.semicolon + 1)) return {begin, end, lines};
    return {begin, next, lines + "\r\n\t"};
}

} // namespace glotta
