#include "platform/CaseMap.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <locale.h>
#include <wctype.h>
#endif

namespace glotta {
namespace {

#ifdef _WIN32
char32_t Map(char32_t character, DWORD how) {
    wchar_t from[2] = {static_cast<wchar_t>(character), 0};
    int length = 1;
    if (character > 0xFFFF) {
        from[0] = static_cast<wchar_t>(0xD800 + ((character - 0x10000) >> 10));
        from[1] = static_cast<wchar_t>(0xDC00 + ((character - 0x10000) & 0x3FF));
        length = 2;
    }
    wchar_t to[2] = {};
    if (LCMapStringW(LOCALE_INVARIANT, how, from, length, to, 2) != length) return character;
    if (length == 1) return to[0];
    return 0x10000 + ((char32_t(to[0]) - 0xD800) << 10) + (char32_t(to[1]) - 0xDC00);
}
char32_t SystemUpper(char32_t character) {
    return Map(character, LCMAP_UPPERCASE);
}
char32_t SystemLower(char32_t character) {
    return Map(character, LCMAP_LOWERCASE);
}
#else
locale_t UnicodeLocale() {
    static const locale_t locale = [] {
        for (const char* name : {"C.UTF-8", "en_US.UTF-8", "UTF-8"})
            if (locale_t found = newlocale(LC_CTYPE_MASK, name, nullptr)) return found;
        return newlocale(LC_CTYPE_MASK, "C", nullptr);
    }();
    return locale;
}
char32_t SystemUpper(char32_t character) {
    return static_cast<char32_t>(towupper_l(static_cast<wint_t>(character), UnicodeLocale()));
}
char32_t SystemLower(char32_t character) {
    return static_cast<char32_t>(towlower_l(static_cast<wint_t>(character), UnicodeLocale()));
}
#endif

char32_t Checked(char32_t from, char32_t to) {
    return to < 0x80 ? from : to;
}

} // namespace

char32_t CaseMapUpper(char32_t character) {
    if (character < 0x80) return character >= 'a' && character <= 'z' ? character - 32 : character;
    return Checked(character, SystemUpper(character));
}

char32_t CaseMapLower(char32_t character) {
    if (character < 0x80) return character >= 'A' && character <= 'Z' ? character + 32 : character;
    return Checked(character, SystemLower(character));
}

} // namespace glotta
