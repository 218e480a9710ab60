// Character tables of the 8-bit and double-byte code pages; used by Encoding.cpp.
#pragma once
#include <array>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace glotta {

// A code page as a one-to-one table: a byte or pair that the code page would write differently has no character.
struct CodePageTable {
    static constexpr char32_t None = 0xFFFFFFFF;
    static constexpr char32_t OtherPair = 0xFFFFFFFE; // a pair all right, but not the one its character is written as
    std::array<char32_t, 256> single;
    std::array<bool, 256> leads{};                    // starts a pair
    std::vector<char32_t> pairs;                      // by lead * 256 + trail; empty for 8-bit pages
    std::unordered_map<char32_t, std::uint16_t> back; // byte, or lead * 256 + trail

    char32_t Pair(unsigned char lead, unsigned char trail) const { return pairs[lead * 256u + trail]; }
};

// What names the code page: its number and its common name ("windows-1252").
struct CodePageName {
    unsigned number;
    std::string_view name;
};
const std::vector<CodePageName>& CodePageNames();

// Built at the first use, from the system's own tables. An Error when the system does not know the code page.
const CodePageTable& TableOfCodePage(unsigned number);

} // namespace glotta
