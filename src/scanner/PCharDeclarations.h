// What a unit itself declares to be a pointer to characters: variables and fields, and parameters of its
// routines. A literal converts to such a pointer by itself, the string that a look-up yields does not.
#pragma once
#include "platform/Text.h"

#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace glotta {

// Of several declarations of a name the last one counts: those of a routine stand directly before its
// statements. Of an overloaded routine those parameters count that are pointers in all of its forms.
class PCharNames {
public:
    void AddVariable(std::string_view name, bool isPointer);
    void AddRoutine(std::string_view name, std::uint32_t pointers); // bits: positions from 0
    // Also fields of the records of the Windows programming interface.
    bool IsVariable(std::string_view name) const;
    bool IsParameter(std::string_view routine, unsigned position) const;

private:
    std::unordered_set<std::string_view, TextHash, TextEqual> variables_;
    std::unordered_map<std::string_view, std::uint32_t, TextHash, TextEqual> routines_;
};

bool IsPCharType(std::string_view typeName); // of Pascal

// Follows the tokens of a Pascal unit, directives and comments left out.
class PCharDeclarations {
public:
    void BeginRoutine();
    void TakeWord(std::string_view word, bool isStatement) {
        assigns_ = false;
        word_ = word;
        if (!isStatement) TakeDeclared(word);
    }
    void TakeSymbol(char symbol, bool isStatement) { // '!' is ":="
        assigns_ = symbol == '!' && !word_.empty();
        if (!assigns_) word_ = {};
        if (!isStatement) TakeInDeclaration(symbol);
    }
    void TakeOther() {
        assigns_ = false;
        word_ = {};
    }

    // The next token is assigned to a variable or field that is a PChar. `inPCharFunction` tells it of the
    // variable Result.
    bool AssignsToPChar(bool inPCharFunction) const;
    const PCharNames& Names() const { return known_; }

private:
    void TakeDeclared(std::string_view word);
    void TakeInDeclaration(char symbol);
    void TakeType(std::string_view type);
    void EndList();

    PCharNames known_;
    // Of the declaration at hand
    std::vector<std::string_view> names_;
    bool listGoesOn_ = false, typeFollows_ = false;
    std::string_view routine_;
    std::uint32_t pointers_ = 0;
    unsigned depth_ = 0, parameters_ = 0;
    std::string_view word_; // directly before, or before ":="
    bool assigns_ = false;  // ":=" is directly before
};

} // namespace glotta
