#include "scanner/CommentPlaces.h"

namespace glotta {

bool CommentPlaces::At(std::size_t byte) {
    if (!helper_.HasCommentTest() || byte >= text_.size()) return false;
    if (!prepared_) {
        // The library takes a text that ends in a zero and may go on reading it; a zero inside must not end
        // it.
        thread_local std::string source;
        source.assign(text_);
        if (source.find('\0') != std::string::npos) std::replace(source.begin(), source.end(), '\0', ' ');
        helper_.InitInternalPasSource(source.c_str());
        prepared_ = true;
    }
    return helper_.IsCommentAt(0, static_cast<int>(places_.Before(byte)) + 1, isCpp_);
}

bool CommentPlaces::InOne(std::size_t begin, std::size_t end) {
    if (!At(begin) || !At(end - 1)) return false;
    for (std::size_t pos = begin; pos + 1 < end; ++pos) {
        const char before = pos > begin ? text_[pos - 1] : ' ';
        const bool closes = isCpp_ ? text_[pos] == '/' && before == '*'
                                   : text_[pos] == '}' || (text_[pos] == ')' && before == '*');
        if (closes && !At(pos + 1)) return false;
    }
    return true;
}

} // namespace glotta
