// Font character sets and the identifiers that form files have for them.
#pragma once
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace glotta {

inline constexpr int DefaultCharset = 1;

// Nothing for a number without identifier, and for a text that is none. Letter case is ignored.
std::optional<std::string> CharsetToIdent(int charset);
std::optional<int> IdentToCharset(std::string_view ident);
std::vector<std::string> CharsetIdents(); // in the platform's order

} // namespace glotta
