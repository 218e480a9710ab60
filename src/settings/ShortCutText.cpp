#include "settings/ShortCutText.h"

#include "platform/Text.h"

namespace glotta {
namespace {

struct Modifier {
    std::string_view text;
    TShortCut bit;
    bool written; // other spellings are only read
};
constexpr Modifier Modifiers[] = {
    {"Shift+", scShift, true}, {"Ctrl+", scCtrl, true}, {"Alt+", scAlt, true}, {"^", scCtrl, false}};

struct Key {
    std::string_view name;
    TShortCut code;
};
constexpr Key NamedKeys[] = {
    {"BkSp", 0x08},  {"Tab", 0x09}, {"Enter", 0x0D}, {"Esc", 0x1B},   {"Space", 0x20}, {"PgUp", 0x21},
    {"PgDn", 0x22},  {"End", 0x23}, {"Home", 0x24},  {"Left", 0x25},  {"Up", 0x26},    {"Right", 0x27},
    {"Down", 0x28},  {"Ins", 0x2D}, {"Del", 0x2E},   {"Num *", 0x6A}, {"Num +", 0x6B}, {"Num -", 0x6D},
    {"Num /", 0x6F}, {";", 0xBA},   {"=", 0xBB},     {",", 0xBC},     {"-", 0xBD},     {".", 0xBE},
    {"/", 0xBF},     {"`", 0xC0},   {"[", 0xDB},     {"\\", 0xDC},    {"]", 0xDD},     {"'", 0xDE}};

std::string KeyName(TShortCut key) {
    if ((key >= '0' && key <= '9') || (key >= 'A' && key <= 'Z')) return {static_cast<char>(key)};
    if (key >= 0x60 && key <= 0x69) // numeric pad
        return {static_cast<char>('0' + (key - 0x60))};
    if (key >= 0x70 && key <= 0x87) return "F" + std::to_string(key - 0x6F);
    for (const Key& named : NamedKeys)
        if (named.code == key) return std::string(named.name);
    return {};
}

} // namespace

std::string ShortCutToText(TShortCut shortCut) {
    const std::string key = KeyName(shortCut & 0xFF);
    if (key.empty()) return {};
    std::string text;
    for (const Modifier& modifier : Modifiers)
        if (modifier.written && (shortCut & modifier.bit)) text += modifier.text;
    return text + key;
}

TShortCut TextToShortCut(std::string_view text) {
    TShortCut bits = 0;
    for (bool found = true; found;) {
        found = false;
        for (const Modifier& modifier : Modifiers)
            if (StartsWithText(text, modifier.text)) {
                bits |= modifier.bit;
                text.remove_prefix(modifier.text.size());
                found = true;
            }
    }
    for (TShortCut key = 0x08; !text.empty() && key <= 0xFF; ++key)
        if (SameText(text, KeyName(key))) return key | bits;
    return 0;
}

} // namespace glotta
