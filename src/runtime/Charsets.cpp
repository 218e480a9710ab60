#include "runtime/Charsets.h"

#include "platform/Text.h"

namespace glotta {

namespace {

constexpr struct {
    int number;
    const char* ident;
} Charsets[] = {
    {0, "ANSI_CHARSET"},      {1, "DEFAULT_CHARSET"},    {2, "SYMBOL_CHARSET"},
    {77, "MAC_CHARSET"},      {128, "SHIFTJIS_CHARSET"}, {129, "HANGEUL_CHARSET"},
    {130, "JOHAB_CHARSET"},   {134, "GB2312_CHARSET"},   {136, "CHINESEBIG5_CHARSET"},
    {161, "GREEK_CHARSET"},   {162, "TURKISH_CHARSET"},  {163, "VIETNAMESE_CHARSET"},
    {177, "HEBREW_CHARSET"},  {178, "ARABIC_CHARSET"},   {186, "BALTIC_CHARSET"},
    {204, "RUSSIAN_CHARSET"}, {222, "THAI_CHARSET"},     {238, "EASTEUROPE_CHARSET"},
    {255, "OEM_CHARSET"},
};

} // namespace

std::optional<std::string> CharsetToIdent(int charset) {
    for (const auto& known : Charsets)
        if (known.number == charset) return known.ident;
    return {};
}

std::optional<int> IdentToCharset(std::string_view ident) {
    for (const auto& known : Charsets)
        if (SameText(known.ident, ident)) return known.number;
    return {};
}

std::vector<std::string> CharsetIdents() {
    std::vector<std::string> idents;
    for (const auto& known : Charsets)
        idents.push_back(known.ident);
    return idents;
}

} // namespace glotta
