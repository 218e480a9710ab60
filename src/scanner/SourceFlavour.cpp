#include "scanner/SourceFlavour.h"

#include "platform/Files.h"

namespace glotta {
namespace {

const SourceFlavour* current = &PascalFlavour;

} // namespace

const SourceFlavour PascalFlavour{
    .STRDELIM = "'",
    .METHODPOINT = ".",
    .BEGINSIGN = "BEGIN",
    .COMMENTSTART = "(*",
    .COMMENTEND = "*)",
    .IGNORELINE = "{TGL:IGNORE}",
    .STARTIGNORE = "{TGL:IGNORE ON}",
    .STOPIGNORE = "{TGL:IGNORE OFF}",
    .IGNORENEXTLINE = "{TGL:IGNORE NEXT}",
    .TRANSLATENEXTLINE = "{TGL:TRANSLATE NEXT}",
    .SOURCEEXT = ".pas",
    .sSender = "Sender",
    .IsCPPSource = false,
};

const SourceFlavour CppFlavour{
    .STRDELIM = "\"",
    .METHODPOINT = "->",
    .BEGINSIGN = "{",
    .COMMENTSTART = "/*",
    .COMMENTEND = "*/",
    .IGNORELINE = "/*TGL:IGNORE*/",
    .STARTIGNORE = "/*TGL:IGNORE ON*/",
    .STOPIGNORE = "/*TGL:IGNORE OFF*/",
    .IGNORENEXTLINE = "/*TGL:IGNORE NEXT*/",
    .TRANSLATENEXTLINE = "/*TGL:TRANSLATE NEXT*/",
    .SOURCEEXT = ".cpp",
    .sSender = "*Sender",
    .IsCPPSource = true,
};

const SourceFlavour& FlavourOf(std::string_view fileName) {
    const std::string extension = LowerExtension(fileName);
    return extension == ".cpp" || extension == ".h" || extension == ".c" ? CppFlavour : PascalFlavour;
}

void SetSourceFlavour(std::string_view fileName) {
    current = &FlavourOf(fileName);
}
const SourceFlavour& CurrentFlavour() {
    return *current;
}

} // namespace glotta
