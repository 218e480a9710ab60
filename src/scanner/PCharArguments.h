// Arguments of well-known routines that are pointers to characters. A literal converts to such a pointer by
// itself, the string that a look-up yields does not.
#pragma once
#include "scanner/PCharDeclarations.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace glotta {

// Follows the tokens of a unit, directives and comments left out.
class PCharArguments {
public:
    // `own` are the routines that the unit declares, besides the well-known ones.
    PCharArguments(bool isCpp, const PCharNames& own) : isCpp_(isCpp), own_(own) {}

    void TakeWord(std::string_view word) { word_ = word; }
    void TakeSymbol(char symbol);
    void TakeOther() { word_ = {}; }

    // The routine whose pointer argument the next token belongs to directly, not within a further call or
    // cast; 0: of none.
    std::uint8_t Routine() const;
    // What to tell of a literal there: "argument of MessageBox is a PChar: typecast the call".
    static std::string_view Note(std::uint8_t routine, bool isCpp);

private:
    struct Group {
        std::string_view routine; // empty for what is no call
        unsigned argument = 0;
    };
    Group Opened() const;

    bool isCpp_;
    const PCharNames& own_;
    std::string_view word_; // directly before
    std::vector<Group> open_;
};

} // namespace glotta
