#include "scanner/LineWalk.h"

#include "platform/Text.h"

namespace glotta {
namespace {

bool Is(std::string_view line, std::string_view marker) {
    return line.size() == marker.size() && StartsWithText(line, marker);
}

} // namespace

void LineWalk::StartBelow(std::string_view above) {
    for (std::size_t end = above.size(); end > 0;) {
        const std::size_t feed = above.rfind('\n', end - 1);
        const std::size_t begin = feed == std::string_view::npos ? 0 : feed + 1;
        const std::string_view line = Trim(above.substr(begin, end - begin));
        if (Is(line, flavour_.STOPIGNORE)) return;
        InIgnore = Is(line, flavour_.STARTIGNORE);
        if (InIgnore || begin == 0) return;
        end = begin - 1;
    }
}

bool LineWalk::Enter(std::string_view line) {
    line = TrimLeft(line);
    // Every marker opens with the same character, which few lines start with.
    const bool marked = !line.empty() && line[0] == flavour_.STARTIGNORE[0];
    line = marked ? TrimRight(line) : std::string_view();
    if (InIgnore) {
        if (marked && Is(line, flavour_.STOPIGNORE)) {
            InIgnore = IgnoreNextOnly = false;
        } else if (!IgnoreNextOnly) {
            if (marked && Is(line, flavour_.TRANSLATENEXTLINE)) {
                TranslateNext = true;
                InIgnore = false;
            }
        } else {
            InIgnore = IgnoreNextOnly = false;
        }
        return false;
    }
    if (marked && Is(line, flavour_.STARTIGNORE)) {
        InIgnore = true;
        return false;
    }
    if (marked && Is(line, flavour_.IGNORENEXTLINE)) {
        InIgnore = IgnoreNextOnly = true;
        return false;
    }
    return true;
}

void LineWalk::Leave() {
    if (!TranslateNext) return;
    TranslateNext = false;
    InIgnore = true;
}

std::size_t FindMarkerStart(std::string_view text, std::size_t pos, const SourceFlavour& flavour) {
    const std::string_view stem = flavour.STARTIGNORE.substr(0, flavour.STARTIGNORE.find(':'));
    for (pos = text.find(stem[0], pos); pos != std::string_view::npos; pos = text.find(stem[0], pos + 1))
        if (StartsWithText(text.substr(pos, stem.size()), stem)) return pos;
    return std::string_view::npos;
}

bool ContainsMarker(std::string_view line, std::string_view marker) {
    for (std::size_t at = line.find(marker[0]); at != std::string_view::npos;
         at = line.find(marker[0], at + 1))
        if (StartsWithText(line.substr(at, marker.size()), marker)) return true;
    return false;
}

} // namespace glotta
