// The strings that switch all source reading and writing between Object Pascal and C/C++.
#pragma once
#include <string_view>

namespace glotta {

struct SourceFlavour {
    std::string_view STRDELIM, METHODPOINT, BEGINSIGN, COMMENTSTART, COMMENTEND;
    std::string_view IGNORELINE, STARTIGNORE, STOPIGNORE, IGNORENEXTLINE, TRANSLATENEXTLINE;
    std::string_view SOURCEEXT, sSender;
    bool IsCPPSource;
};

extern const SourceFlavour PascalFlavour;
extern const SourceFlavour CppFlavour;

// C/C++ for .cpp, .h and .c (whatever their case), Object Pascal for everything else.
const SourceFlavour& FlavourOf(std::string_view fileName);

// The process-wide flavour, set by the driver for the unit at hand.
void SetSourceFlavour(std::string_view fileName);
const SourceFlavour& CurrentFlavour();

} // namespace glotta
