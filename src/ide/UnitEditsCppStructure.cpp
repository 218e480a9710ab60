#include "ide/UnitEditsCppStructure.h"

#include <algorithm>

namespace glotta::cpp {

namespace {

bool IsAccess(const UnitTokens& tokens, std::size_t index) {
    return (tokens.Is(index, "__published") || tokens.Is(index, "public") || tokens.Is(index, "protected") ||
            tokens.Is(index, "private") || tokens.Is(index, "__automated")) &&
           tokens.IsSymbol(index + 1, ":");
}

} // namespace

// "class PACKAGE TForm1 : public Forms::TForm {"; nothing for forward declarations, friends and template
// parameters.
CppStructure::Class CppStructure::ClassAt(std::size_t keyword) const {
    Class type;
    std::size_t i = keyword + 1;
    for (; tokens_.IsWord(i) || tokens_.IsSymbol(i, "::"); ++i) {
        if (tokens_.IsSymbol(i + 1, "("))
            i = tokens_.Closing(i + 1, tokens_.Count()); // __declspec(...)
        else if (!tokens_.Is(i, "final"))
            type.name = i;
    }
    if (type.name == None || !(tokens_.IsSymbol(i, ":") || tokens_.IsSymbol(i, "{"))) return {};
    for (unsigned angle = 0; i < tokens_.Count() && !tokens_.IsSymbol(i, "{"); ++i) {
        if (tokens_.IsSymbol(i, ";") || tokens_.IsSymbol(i, ")")) return {};
        if (tokens_.IsSymbol(i, "<")) ++angle;
        if (tokens_.IsSymbol(i, ">") && angle > 0) --angle;
        const bool ends =
            tokens_.IsSymbol(i + 1, ",") || tokens_.IsSymbol(i + 1, "{") || tokens_.IsSymbol(i + 1, "<");
        if (angle == 0 && type.parent.empty() && tokens_.IsWord(i) && ends)
            type.parent = std::string(tokens_[i]);
    }
    type.open = i;
    type.close = tokens_.Closing(i, tokens_.Count());
    return type.close < tokens_.Count() ? type : Class();
}

CppStructure::Class CppStructure::FindClass(std::string_view name) const {
    for (std::size_t i = 0; i < tokens_.Count(); ++i) {
        if (!tokens_.Is(i, "class") && !tokens_.Is(i, "struct")) continue;
        Class type = ClassAt(i);
        if (type.name != None && tokens_[type.name] == name) return type;
    }
    return {};
}

std::vector<CppStructure::Member> CppStructure::Members(const Class& type, std::size_t* published) const {
    std::vector<Member> members;
    bool inPublished = false;
    if (published) *published = None;
    for (std::size_t i = type.open + 1; i < type.close;) {
        if (IsAccess(tokens_, i)) {
            inPublished = tokens_.Is(i, "__published");
            if (published && inPublished && *published == None) *published = i + 1;
            i += 2;
            continue;
        }
        Member member;
        member.first = i;
        member.published = inPublished;
        for (; i < type.close && !tokens_.IsSymbol(i, ";"); ++i) {
            if (tokens_.IsSymbol(i, "(") && !member.method && tokens_.IsWord(i - 1)) {
                member.method = true;
                member.name = i - 1;
            }
            const bool body = tokens_.IsSymbol(i, "{");
            if (body || tokens_.IsSymbol(i, "(") || tokens_.IsSymbol(i, "["))
                i = tokens_.Closing(i, type.close);
            if (body && !tokens_.IsSymbol(i + 1, ";")) break;
        }
        member.last = std::min(i, type.close - 1);
        if (!member.method) member.name = member.last > member.first ? member.last - 1 : member.first;
        i = member.last + 1;
        members.push_back(member);
    }
    return members;
}

CppStructure::Body CppStructure::FindBody(std::string_view className, std::string_view name) const {
    for (std::size_t i = 0; i + 3 < tokens_.Count(); ++i) {
        if (!tokens_.IsSymbol(i + 1, "::") || !tokens_.IsSymbol(i + 3, "(") || !tokens_.IsWord(i) ||
            tokens_[i] != className || tokens_[i + 2] != name)
            continue;
        std::size_t open = tokens_.Closing(i + 3, tokens_.Count()) + 1;
        while (tokens_.IsWord(open)) // const
            ++open;
        if (!tokens_.IsSymbol(open, "{")) continue;
        const std::size_t close = tokens_.Closing(open, tokens_.Count());
        if (close < tokens_.Count()) return {i + 3, open, close};
    }
    return {};
}

std::vector<std::string> CppStructure::ParameterNames(const Body& body) const {
    std::vector<std::string> names;
    const std::size_t close = tokens_.Closing(body.parameters, body.open);
    for (std::size_t i = body.parameters + 1; i < close; ++i)
        if (tokens_.IsWord(i) && (tokens_.IsSymbol(i + 1, ",") || i + 1 == close))
            names.emplace_back(tokens_[i]);
    return names;
}

std::vector<ByteRange> CppStructure::MethodsOf(std::string_view className) const {
    std::vector<ByteRange> methods;
    const std::size_t count = tokens_.Count();
    for (std::size_t i = 0; i + 3 < count; ++i) {
        if (tokens_[i] != className || !tokens_.IsSymbol(i + 1, "::")) continue;
        std::size_t at = i + 2;
        while (at < count && (tokens_.IsWord(at) || tokens_.IsSymbol(at, "~") || tokens_.IsSymbol(at, "::"))) ++at;
        if (!tokens_.IsSymbol(at, "(")) continue;
        for (at = tokens_.Closing(at, count) + 1; at < count; ++at) {
            if (tokens_.IsSymbol(at, "("))
                at = tokens_.Closing(at, count);
            else if (tokens_.IsSymbol(at, "{") || tokens_.IsSymbol(at, ";") || tokens_.IsSymbol(at, ")"))
                break;
        }
        if (!tokens_.IsSymbol(at, "{")) continue;
        const std::size_t close = tokens_.Closing(at, count);
        if (close >= count) continue;
        methods.push_back({static_cast<std::uint32_t>(tokens_.Begin(i)), static_cast<std::uint32_t>(tokens_.End(close))});
        i = close;
    }
    return methods;
}

} // namespace glotta::cpp
