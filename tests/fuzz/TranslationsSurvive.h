// Whatever a translation file of either kind holds can be written into one of either kind, and is then read
// as the same.
#pragma once
#include "platform/Error.h"
#include "runtime/GlbFile.h"
#include "runtime/GltFile.h"

#include <cstdlib>

namespace glotta {

inline void Require(bool holds) {
    if (!holds) std::abort();
}

inline bool SameForms(const TranslationFile& a, const TranslationFile& b) {
    if (a.FormNames() != b.FormNames()) return false;
    for (const std::string& name : a.FormNames())
        if (*a.Find(name) != *b.Find(name)) return false;
    return true;
}

inline void CheckSurvival(const TranslationFile& from) {
    GlbFile binary;
    GltFile text("fuzz.glt", "");
    text.SetDelimiter("\\e");
    for (const std::string& name : from.FormNames()) {
        binary.Put(name, *from.Find(name));
        text.Put(name, *from.Find(name));
    }
    Require(SameForms(from, GlbFile("fuzz.glb", binary.ToBytes())));
    const std::string bytes = text.ToBytes();
    GltFile again("fuzz.glt", bytes);
    Require(SameForms(from, again));
    Require(again.ToBytes() == bytes);
    for (const std::string& name : from.FormNames())
        again.Put(name, *from.Find(name));
    Require(!again.Changed());
}

} // namespace glotta
