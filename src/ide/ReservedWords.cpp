#include "ide/ReservedWords.h"

#include "platform/Text.h"

#include <unordered_set>

namespace glotta {

bool IsReservedWord(std::string_view word, bool isCpp) {
    static const std::unordered_set<std::string_view, TextHash, TextEqual> pascal = {
        "and",      "array",     "as",       "asm",         "begin",          "case",          "class",
        "const",    "constructor", "destructor", "dispinterface", "div",      "do",            "downto",
        "else",     "end",       "except",   "exports",     "file",           "finalization",  "finally",
        "for",      "function",  "goto",     "if",          "implementation", "in",            "inherited",
        "initialization", "inline", "interface", "is",      "label",          "library",       "mod",
        "nil",      "not",       "object",   "of",          "or",             "out",           "packed",
        "procedure", "program",  "property", "raise",       "record",         "repeat",        "resourcestring",
        "set",      "shl",       "shr",      "string",      "then",           "threadvar",     "to",
        "try",      "type",      "unit",     "until",       "uses",           "var",           "while",
        "with",     "xor"};
    static const std::unordered_set<std::string_view> cpp = {
        "asm",      "auto",      "bool",     "break",       "case",      "catch",     "char",     "class",
        "const",    "const_cast", "continue", "default",    "delete",    "do",        "double",   "dynamic_cast",
        "else",     "enum",      "explicit", "export",      "extern",    "false",     "float",    "for",
        "friend",   "goto",      "if",       "inline",      "int",       "long",      "mutable",  "namespace",
        "new",      "operator",  "private",  "protected",   "public",    "register",  "reinterpret_cast",
        "return",   "short",     "signed",   "sizeof",      "static",    "static_cast", "struct", "switch",
        "template", "this",      "throw",    "true",        "try",       "typedef",   "typeid",   "typename",
        "union",    "unsigned",  "using",    "virtual",     "void",      "volatile",  "wchar_t",  "while"};
    return isCpp ? cpp.contains(word) : pascal.contains(word);
}

} // namespace glotta
