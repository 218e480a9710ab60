#include "scanner/CallPlaces.h"

#include "scanner/CallPlacesWalk.h"
#include "scanner/PCharArguments.h"
#include "scanner/TextMacro.h"

namespace glotta {

using places::Place;
using places::Reason;

namespace places {

std::string_view Phrase(Reason reason) {
    static constexpr std::string_view phrases[] = {
        "",
        "cuts a token",
        "inside a comment",
        "in a directive",
        "in assembler code",
        "behind the end of the unit",
        "in a const section",
        "in a resourcestring section",
        "initial value of a variable",
        "in a type section",
        "file of a used unit",
        "name of an exported routine",
        "name of an external routine",
        "default value of a parameter",
        "in an attribute",
        "interface GUID",
        "text of a deprecated or platform directive",
        "in a message directive",
        "in a declaration",
        "in an inline constant",
        "in a range",
        "single character, may be a Char",
        "label of a case statement",
        "argument that is a pointer",
        "assigned to a PChar: typecast the call",
        "at file or class scope",
        "default argument",
        "static initialiser",
        "array initialiser",
        "adjacent to another literal or a macro",
        "initial value of a char pointer: add .c_str() to the call",
        "assigned to a char pointer: add .c_str() to the call",
        "in sizeof",
        "in a constant expression",
        "template argument",
    };
    static_assert(std::size(phrases) == static_cast<std::size_t>(Reason::Count));
    return phrases[static_cast<std::size_t>(reason)];
}

} // namespace places

struct CallPlaces::Impl {
    std::string_view text;
    bool isCpp;
    places::Walked walked;

    // The place that holds the byte; null when there is none.
    const Place* At(std::size_t byte) const {
        auto next = std::upper_bound(walked.places.begin(), walked.places.end(), byte,
                                     [](std::size_t b, const Place& place) { return b < place.begin; });
        if (next == walked.places.begin() || (next - 1)->end <= byte) return nullptr;
        return &*(next - 1);
    }
    // The literal at the byte or the next one behind it.
    const Place* FirstLiteral(std::size_t byte) const {
        return &*std::find_if(walked.places.begin(), walked.places.end(),
                              [byte](const Place& place) { return place.literal && place.end > byte; });
    }
    bool Covers(std::string_view expression, const Token& token) const {
        const std::string_view word = expression.substr(token.begin, token.end - token.begin);
        if (token.kind == TokenKind::Symbol) return word == "+" || (isCpp && (word == "(" || word == ")"));
        return isCpp && token.kind == TokenKind::Identifier && IsTextMacro(word);
    }
    Reason WhyNot(std::size_t begin, std::size_t end) const;
};

Reason CallPlaces::Impl::WhyNot(std::size_t begin, std::size_t end) const {
    const Place* first = At(begin);
    if (first && !first->literal) return first->reason;
    if (begin >= end || end > text.size() || (first && first->begin != begin)) return Reason::CutsToken;
    const std::string_view expression = text.substr(begin, end - begin);
    Reason reason = Reason::None;
    const Place* last = nullptr;
    bool joined = false;
    std::size_t covered = 0;
    for (const Token& token : Tokenize(expression, isCpp, KeepComments::Yes)) {
        covered = token.end;
        if (token.kind != TokenKind::String) {
            if (!Covers(expression, token)) return Reason::CutsToken;
            continue;
        }
        const Place* place = At(begin + token.begin);
        if (!place || !place->literal || place->begin != begin + token.begin ||
            place->end != begin + token.end)
            return Reason::CutsToken;
        if (reason == Reason::None) reason = place->reason;
        joined |= !last && place->joinedBefore;
        last = place;
    }
    if (!last || covered != expression.size()) return Reason::CutsToken;
    joined |= last->joinedBehind;
    return joined && (reason == Reason::None || reason == Reason::PCharArgument) ? Reason::Adjacent : reason;
}

CallPlaces::CallPlaces(std::string_view text, bool isCpp)
    : impl_(new Impl{text, isCpp, isCpp ? places::WalkCpp(text) : places::WalkPascal(text)}) {}

CallPlaces::~CallPlaces() = default;

std::string_view CallPlaces::WhyNot(std::size_t begin, std::size_t end) const {
    const Reason reason = impl_->WhyNot(begin, end);
    if (reason != Reason::PCharArgument) return places::Phrase(reason);
    return PCharArguments::Note(impl_->FirstLiteral(begin)->routine, impl_->isCpp);
}

const std::vector<CallPlaces::ConstSection>& CallPlaces::ConstSections() const {
    return impl_->walked.constSections;
}

} // namespace glotta
