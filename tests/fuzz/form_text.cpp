// A form that can be read comes back identical; written anew it reads as the same values.
#include "RewrittenForm.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    if (!bytes.starts_with('\xFF') && !bytes.starts_with("TPF0")) CheckRewritten(bytes);
    return 0;
}
