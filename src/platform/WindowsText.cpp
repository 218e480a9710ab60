#ifdef _WIN32
#include "platform/WindowsText.h"

#include "platform/Text.h"
#include "platform/Utf16.h"

#include <windows.h>

namespace glotta {

std::wstring WideText(std::string_view text) {
    const std::u16string units = ToUtf16(text);
    return {units.begin(), units.end()};
}

std::string FromWideText(std::wstring_view text) {
    return FromUtf16(std::u16string(text.begin(), text.end()));
}

std::string WindowsMessage(unsigned long code) {
    wchar_t text[1024];
    const DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                                        code, 0, text, DWORD(std::size(text)), nullptr);
    if (!length) return "system error " + std::to_string(code);
    return std::string(TrimRight(FromWideText({text, length})));
}

} // namespace glotta
#endif
