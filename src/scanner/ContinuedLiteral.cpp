#include "scanner/ContinuedLiteral.h"

namespace glotta {
namespace {

const std::string QuoteAlone = "\"";

bool EndsInBackslash(std::string_view text, std::size_t end) {
    return end > 0 && text[end - 1] == '\\';
}

} // namespace

void ContinuedLiteral::Begin(std::string_view text, const LiteralStart& start, std::size_t lineEnd) {
    if (text[start.open] != '"') return;
    if (start.raw)
        closing_ = ')' + std::string(text.substr(start.open + 1, start.contentBegin - start.open - 2)) + '"';
    else if (EndsInBackslash(text, lineEnd))
        closing_ = QuoteAlone;
}

std::size_t ContinuedLiteral::Skip(std::string_view text, std::size_t from, std::size_t lineEnd) {
    if (!Open()) return from;
    const std::string_view line = text.substr(0, lineEnd);
    std::size_t end = line.find(closing_, from);
    if (closing_ == QuoteAlone) {
        for (std::size_t pos = from; end != std::string_view::npos && pos < end; ++pos)
            if (line[pos] == '\\' && ++pos == end) end = line.find(closing_, end + 1); // an escaped quote
        if (end == std::string_view::npos && !EndsInBackslash(text, lineEnd)) closing_.clear();
    }
    if (end == std::string_view::npos) return lineEnd;
    end += closing_.size();
    closing_.clear();
    return end;
}

} // namespace glotta
