// Object Pascal of any bytes: tokens, comments and blanks tile the text, and comments are found alike in both
// ways.
#include "TokensTile.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    glotta::CheckTokens({reinterpret_cast<const char*>(data), size}, false);
    return 0;
}
