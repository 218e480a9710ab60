// What a compiler directive does to the conditional branches of a text, in Pascal and in C/C++.
#pragma once
#include <cstdint>
#include <string_view>

namespace glotta {

enum class Branch : std::uint8_t { None, If, Else, EndIf };

// The directive as it stands in the source: "{$IFDEF A}", "(*$ELSE*)", "#if A".
inline Branch BranchOf(std::string_view directive) {
    const std::size_t start = directive.find_first_not_of("{(*$# \t");
    if (start == std::string_view::npos)
        return Branch::None;
    char word[8] = {};
    for (std::size_t i = 0; i < 7 && start + i < directive.size(); ++i) {
        const char c = static_cast<char>(directive[start + i] | 0x20);
        if (c < 'a' || c > 'z')
            break;
        word[i] = c;
    }
    const std::string_view name = word;
    if (name == "endif" || name == "ifend")
        return Branch::EndIf;
    if (name.starts_with("else") || name.starts_with("elif"))
        return Branch::Else;
    return name == "if" || name == "ifdef" || name == "ifndef" || name == "ifopt" ? Branch::If : Branch::None;
}

} // namespace glotta
