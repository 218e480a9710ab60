// The helper library's comment test for one text, and the places by which it is asked.
#pragma once
#include "platform/Text.h"
#include "scanner/HelperLibrary.h"

#include <string_view>

namespace glotta {

// Number of characters before a byte. Costs the distance to the place asked for last.
class CharPlaces {
public:
    explicit CharPlaces(std::string_view text) : text_(text), ascii_(IsAscii(text)) {}

    std::size_t Before(std::size_t byte) {
        if (ascii_) return byte;
        if (byte >= byte_)
            chars_ += CharCount(text_.substr(byte_, byte - byte_));
        else
            chars_ -= CharCount(text_.substr(byte, byte_ - byte));
        byte_ = byte;
        return chars_;
    }

private:
    std::string_view text_;
    bool ascii_;
    std::size_t byte_ = 0, chars_ = 0;
};

class CommentPlaces {
public:
    CommentPlaces(std::string_view text, bool isCpp, const HelperLibrary& helper, CharPlaces& places)
        : text_(text), isCpp_(isCpp), helper_(helper), places_(places) {}

    // Whether the byte lies inside a comment; false when there is no test.
    bool At(std::size_t byte);
    // Whether bytes [begin, end) lie inside one comment.
    bool InOne(std::size_t begin, std::size_t end);

private:
    std::string_view text_;
    bool isCpp_;
    bool prepared_ = false;
    const HelperLibrary& helper_;
    CharPlaces& places_;
};

} // namespace glotta
