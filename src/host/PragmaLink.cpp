#include "host/PragmaLink.h"

#include "ide/SourceTokens.h"
#include "platform/Text.h"

namespace glotta {
namespace {

std::string_view NextWord(std::string_view& rest) {
    rest = TrimLeft(rest);
    std::size_t length = 0;
    while (length < rest.size() && static_cast<unsigned char>(rest[length]) > ' ')
        ++length;
    const std::string_view word = rest.substr(0, length);
    rest = TrimLeft(rest.substr(length));
    return word;
}

// "link" of '#pragma link "Glotta"', with rest at its arguments; empty for other directives.
std::string_view PragmaName(std::string_view directive, std::string_view& rest) {
    rest = TrimLeft(directive.substr(1));
    return NextWord(rest) == "pragma" ? NextWord(rest) : std::string_view();
}

bool Links(std::string_view arguments, std::string_view unit) {
    if (arguments.size() < 2 || arguments.front() != '"') return false;
    std::string_view name = arguments.substr(1, arguments.find('"', 1) - 1);
    name = name.substr(name.find_last_of("\\/") + 1);
    return SameText(name.substr(0, name.find('.')), unit);
}

} // namespace

TextEdits AddPragmaLink(std::string_view text, std::string_view unit) {
    std::size_t behind = std::string_view::npos, lastLink = behind, resource = behind;
    for (const Token& token : Tokenize(text, true)) {
        if (token.kind != TokenKind::Directive) continue;
        std::string_view rest;
        const std::string_view name = PragmaName(text.substr(token.begin, token.end - token.begin), rest);
        if (name == "link") {
            if (Links(rest, unit)) return {};
            lastLink = token.end;
        } else if (name == "resource" && resource == std::string_view::npos) {
            resource = token.begin;
        }
        behind = token.end;
    }
    const std::string line = "#pragma link \"" + std::string(unit) + "\"";
    if (lastLink == std::string_view::npos && resource != std::string_view::npos)
        return {{resource, resource, line + "\r\n"}};
    const std::size_t place = lastLink != std::string_view::npos ? lastLink : behind;
    if (place == std::string_view::npos) return {{0, 0, line + "\r\n"}};
    const std::size_t end = std::min(text.find("\r\n", place), text.size());
    return {{end, end, "\r\n" + line}};
}

} // namespace glotta
