// The binary translation file; docs/formats.md has its layout.
#pragma once
#include "runtime/TranslationFile.h"

namespace glotta {

class GlbFile : public TranslationFile {
public:
    GlbFile() = default; // without forms
    // Throws Error "file: offset N: reason" unless the bytes are exactly such a file.
    GlbFile(const std::string& fileName, std::string_view bytes);

    std::string ToBytes() override;
};

} // namespace glotta
