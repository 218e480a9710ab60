// Whether a place of a text lies in a comment.
#pragma once
#include "ide/SourceTokens.h"

#include <string>
#include <string_view>
#include <vector>

namespace glotta {

class CommentTest {
public:
    void Init(std::string_view source);
    // a <= 0: b is the 1-based character of the text; else a is the 1-based line and b the 1-based character
    // in it.
    bool IsCommentAt(int a, int b, bool isCpp);

private:
    static constexpr std::size_t nowhere = static_cast<std::size_t>(-1);

    struct Comments {
        bool known = false;
        std::vector<ByteRange> ranges;
        std::size_t last = 0; // the range found last: most questions come in the order of the text
    };

    std::size_t ByteAt(std::size_t character);
    std::size_t ByteInLine(std::size_t line, std::size_t character);

    std::string source_;
    bool ascii_ = true;
    std::vector<std::size_t> charBytes_; // the byte of every charStep-th character, as far as asked for
    std::size_t lastChar_ = 0, lastByte_ = 0;
    std::vector<std::size_t> lineBytes_; // where each line begins; empty until asked for
    Comments comments_[2];               // Pascal, C/C++: only the question tells which
};

} // namespace glotta
