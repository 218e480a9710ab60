// A text before and after a change, written as one: lines start with ' ', '-' (before only) or '+' (after only).
#pragma once
#include "platform/Text.h"

#include <string>
#include <string_view>

namespace glotta {

struct DiffText {
    std::string before, after; // lines ended by CR LF

    explicit DiffText(std::string_view marked) {
        if (marked.starts_with('\n')) marked.remove_prefix(1); // a raw string opens with a line end
        for (const std::string& line : SplitLines(marked)) {
            const std::string text = (line.empty() ? line : line.substr(1)) + "\r\n";
            if (!line.starts_with('+')) before += text;
            if (!line.starts_with('-')) after += text;
        }
    }
};

} // namespace glotta
