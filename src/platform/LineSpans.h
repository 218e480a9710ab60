// Where lines end: CR LF, LF and CR each end one.
#pragma once
#include <algorithm>
#include <cstddef>
#include <string_view>

namespace glotta {

struct LineSpan {
    std::size_t end;  // of the line without its line end
    std::size_t next; // where the next line begins
};

inline LineSpan LineAt(std::string_view text, std::size_t begin) {
    const std::size_t end = std::min(text.find_first_of("\r\n", begin), text.size());
    return {end, std::min(end + (text.substr(end, 2) == "\r\n" ? 2 : 1), text.size())};
}

} // namespace glotta
