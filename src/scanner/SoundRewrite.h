// The proof before a unit is written: the result has exactly the original's tokens, but for what the edits
// exchange.
#pragma once
#include "platform/TextEdit.h"

#include <string>
#include <string_view>
#include <vector>

namespace glotta {

// Why an edit would break the unit, as a short English phrase; empty when it is sound. One entry per edit.
struct EditVerdicts {
    std::vector<std::string> rows, others;
    bool Sound() const;
};

// `rows` exchange a literal expression, perhaps with the "+" or ";" behind it, for a call with the same tail
// (in a comment: for any text that stays in it). `others` are insertions, or replace whole tokens by whole
// tokens. The edits of both kinds may come in any order. Leave out what is unsound and ask again: what is
// left is then proven or named.
EditVerdicts CheckEdits(std::string_view original, const TextEdits& rows, const TextEdits& others,
                        bool isCpp);

} // namespace glotta
