#include "scanner/ConstDeclarations.h"

namespace glotta {

ConstDeclarations::ConstDeclarations(std::string_view text,
                                     const std::vector<CallPlaces::ConstSection>& sections) {
    for (const CallPlaces::ConstSection& section : sections)
        Read(text, section);
}

void ConstDeclarations::Read(std::string_view text, const CallPlaces::ConstSection& section) {
    const std::string_view source = text.substr(section.begin, section.end - section.begin);
    enum class Part { Name, Type, Value } part = Part::Name;
    Declaration current{};
    int depth = 0;
    for (const Token& token : Tokenize(source, false)) {
        const std::string_view word = source.substr(token.begin, token.end - token.begin);
        const bool symbol = token.kind == TokenKind::Symbol;
        if (symbol && (word == "(" || word == "[")) ++depth;
        if (symbol && (word == ")" || word == "]")) --depth;
        if (part == Part::Value) {
            if (current.valueBegin == 0) {
                current.valueBegin = section.begin + token.begin;
                current.aggregate = word == "(";
            }
            tokenBegins_.push_back(section.begin + token.begin);
            tokenEnds_.push_back(section.begin + token.end);
        }
        if (symbol && depth <= 0 && word == ";") {
            current.end = section.begin + token.begin;
            if (part == Part::Value) declarations_.push_back(current);
            part = Part::Name;
            depth = 0;
        } else if (part == Part::Name && depth == 0 && token.kind == TokenKind::Identifier) {
            current = {word.substr(word.starts_with('&')), 0, 0, false};
            part = Part::Type;
        } else if (part == Part::Type && symbol && depth == 0 && word == "=") {
            part = Part::Value;
        }
    }
    if (part == Part::Value && current.valueBegin != 0) { // the text breaks off inside the declaration
        current.end = section.end;
        declarations_.push_back(current);
    }
}

const ConstDeclarations::Declaration* ConstDeclarations::At(std::size_t place) const {
    const auto next =
        std::upper_bound(declarations_.begin(), declarations_.end(), place,
                         [](std::size_t at, const Declaration& d) { return at < d.valueBegin; });
    if (next == declarations_.begin() || place >= std::prev(next)->end) return nullptr;
    return &*std::prev(next);
}

bool ConstDeclarations::IsWholeTokens(std::size_t begin, std::size_t end) const {
    return std::binary_search(tokenBegins_.begin(), tokenBegins_.end(), begin) &&
           std::binary_search(tokenEnds_.begin(), tokenEnds_.end(), end);
}

} // namespace glotta
