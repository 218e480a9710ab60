// Unicode letter case of single characters, as the system knows it.
#pragma once

namespace glotta {

// Simple mappings. A non-ASCII character never maps to an ASCII one, so ASCII text equals ASCII text only.
char32_t CaseMapUpper(char32_t character);
char32_t CaseMapLower(char32_t character);

} // namespace glotta
