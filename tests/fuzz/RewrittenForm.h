// What both targets for forms hold against any bytes.
#pragma once
#include "platform/Error.h"
#include "vcl/FormFile.h"

#include <cstdlib>

inline void ForgetRaw(glotta::FormNode& node) {
    node.rawHead.clear();
    node.rawTail.clear();
    for (glotta::FormProperty& property : node.properties)
        property.raw.clear();
    for (const auto& child : node.children)
        ForgetRaw(*child);
}

inline std::optional<glotta::FormFile> ParsedForm(const std::string& bytes) {
    try {
        return glotta::FormFile::Parse(bytes, "fuzz.dfm");
    } catch (const glotta::Error&) {
        return {};
    }
}

inline void CheckRewritten(const std::string& bytes) {
    std::optional<glotta::FormFile> form = ParsedForm(bytes);
    if (!form) return;
    if (form->Write() != bytes) std::abort();
    ForgetRaw(form->Root());
    std::string anew;
    try {
        anew = form->Write();
    } catch (const glotta::Error&) {
        return; // what was read need not be expressible in another way, but it must say so
    }
    std::optional<glotta::FormFile> again = ParsedForm(anew);
    if (!again) std::abort();
    ForgetRaw(again->Root());
    if (again->Write() != anew) std::abort();
}
