// What holds for the tokens of any text, and for the walk over them.
#pragma once
#include "ide/SourceTokens.h"
#include "scanner/CallPlaces.h"

#include <cstdlib>

namespace glotta {

inline void CheckTokens(std::string_view text, bool isCpp) {
    const CallPlaces places(text, isCpp);
    const std::vector<ByteRange> comments = FindComments(text, isCpp);
    std::size_t at = text.starts_with("\xEF\xBB\xBF") ? 3 : 0, comment = 0;
    for (const Token& token : Tokenize(text, isCpp, KeepComments::Yes)) {
        if (token.begin < at || token.end <= token.begin) std::abort();
        for (; at < token.begin; ++at)
            if (static_cast<unsigned char>(text[at]) > ' ' && !(isCpp && text[at] == '\\')) std::abort();
        at = token.end;
        places.WhyNot(token.begin, token.end);
        if (token.kind != TokenKind::Comment) continue;
        if (comment == comments.size() || comments[comment].begin != token.begin ||
            comments[comment].end != token.end)
            std::abort();
        ++comment;
    }
    if (comment != comments.size()) std::abort();
    for (const CallPlaces::ConstSection& section : places.ConstSections())
        if (section.begin > section.end || section.end > text.size()) std::abort();
}

} // namespace glotta
