#include "CommentTest.h"

#include "platform/Text.h"

namespace glotta {

namespace {

constexpr std::size_t charStep = 4096;

} // namespace

void CommentTest::Init(std::string_view source) {
    source_.assign(source);
    ascii_ = IsAscii(source_);
    charBytes_.assign(1, 0);
    lastChar_ = lastByte_ = 0;
    lineBytes_.clear();
    for (Comments& comments : comments_)
        comments = {};
}

// The byte of the 0-based character; nowhere behind the end.
std::size_t CommentTest::ByteAt(std::size_t character) {
    if (character >= source_.size()) return nowhere;
    if (ascii_) return character;
    const std::string_view text = source_;
    while (charBytes_.size() <= character / charStep)
        charBytes_.push_back(charBytes_.back() + ByteOffset(text.substr(charBytes_.back()), charStep));
    const std::size_t mark = character / charStep;
    if (lastChar_ > character || lastChar_ < mark * charStep) {
        lastChar_ = mark * charStep;
        lastByte_ = charBytes_[mark];
    }
    lastByte_ += ByteOffset(text.substr(lastByte_), character - lastChar_);
    lastChar_ = character;
    return lastByte_ < text.size() ? lastByte_ : nowhere;
}

std::size_t CommentTest::ByteInLine(std::size_t line, std::size_t character) {
    if (lineBytes_.empty()) {
        lineBytes_.push_back(0);
        for (std::size_t at = source_.find('\n'); at != std::string::npos; at = source_.find('\n', at + 1))
            lineBytes_.push_back(at + 1);
        lineBytes_.push_back(source_.size());
    }
    if (line + 1 >= lineBytes_.size()) return nowhere;
    const std::size_t begin = lineBytes_[line], length = lineBytes_[line + 1] - begin;
    const std::size_t offset = ByteOffset(std::string_view(source_).substr(begin, length), character);
    return offset < length ? begin + offset : nowhere;
}

bool CommentTest::IsCommentAt(int a, int b, bool isCpp) {
    if (b < 1) return false;
    const auto character = static_cast<std::size_t>(b) - 1;
    const std::size_t byte =
        a <= 0 ? ByteAt(character) : ByteInLine(static_cast<std::size_t>(a) - 1, character);
    if (byte == nowhere) return false;
    Comments& comments = comments_[isCpp];
    if (!comments.known) {
        comments.ranges = FindComments(source_, isCpp);
        comments.known = true;
    }
    // The first range that ends behind the place.
    const std::vector<ByteRange>& ranges = comments.ranges;
    const auto endsBehind = [&](std::size_t index) { return ranges[index].end > byte; };
    std::size_t& at = comments.last;
    const bool atPresent = (at == ranges.size() || endsBehind(at)) && (at == 0 || !endsBehind(at - 1));
    const bool atNext = !atPresent && at < ranges.size() && !endsBehind(at) &&
                        (at + 1 == ranges.size() || endsBehind(at + 1));
    if (atNext)
        ++at;
    else if (!atPresent)
        at = static_cast<std::size_t>(
            std::partition_point(ranges.begin(), ranges.end(), [&](ByteRange r) { return r.end <= byte; }) -
            ranges.begin());
    return at < ranges.size() && ranges[at].begin <= byte;
}

} // namespace glotta
