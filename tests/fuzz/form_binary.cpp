// A form that can be read comes back identical; written anew it reads as the same values.
#include "RewrittenForm.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string bytes(reinterpret_cast<const char*>(data), size);
    CheckRewritten(bytes.starts_with('\xFF') ? bytes : "TPF0" + bytes);
    return 0;
}
