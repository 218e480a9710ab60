// Which lines a scan looks at, by the marker comments.
#pragma once
#include "scanner/SourceFlavour.h"

#include <string_view>

namespace glotta {

class LineWalk {
public:
    explicit LineWalk(const SourceFlavour& flavour) : flavour_(flavour) {}

    // For a scan that starts behind `above`: whether that leaves a region open.
    void StartBelow(std::string_view above);
    // Takes the next line (without its end); true when it is to be scanned. Leave() then follows.
    bool Enter(std::string_view line);
    void Leave();
    // No marker has a hold on the next line: lines without a marker of their own are all scanned.
    bool Idle() const { return !InIgnore && !TranslateNext; }

private:
    const SourceFlavour& flavour_;
    bool InIgnore = false;
    bool IgnoreNextOnly = false;
    bool TranslateNext = false;
};

// Where the next marker may start, from `pos` on; npos when there is none.
std::size_t FindMarkerStart(std::string_view text, std::size_t pos, const SourceFlavour& flavour);

// Searches for a marker without regard to letter case.
bool ContainsMarker(std::string_view line, std::string_view marker);

} // namespace glotta
