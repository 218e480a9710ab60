// What the review does to identifiers and replacements: functions on rows, without a dialog.
#pragma once
#include "runtime/CustomLang.h"
#include "scanner/FoundStrings.h"
#include "scanner/SourceFlavour.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace glotta {

using FoundRows = std::vector<TgxFoundSourceString*>;

// The row gets the identifier, and its replacement asks for it.
void SetNewStrIDOnRow(TgxFoundSourceString& row, const std::string& id, const SourceFlavour& flavour);

// Fit to stand between delimiters: not empty, no delimiter, no control character.
bool IsUsableStringID(std::string_view id, const SourceFlavour& flavour);

// Which texts the identifiers stand for: in the rows, and in the component (nil: none). Two different texts
// under one identifier would lose one of them.
class IDsInUse {
public:
    explicit IDsInUse(const TgxCustomLang* component) : component_(component) {}
    void Add(const FoundRows& rows);
    // The identifier already stands for another text than `value`.
    bool Clashes(std::string_view id, const std::string& value) const;

private:
    const TgxCustomLang* component_;
    std::unordered_multimap<std::string, const std::string*, TextHash, TextEqual> texts_;
};

// Numbers the rows prefix + start, prefix + start + 1 ..., stepping over identifiers that stand for another
// text. Rows that shared an identifier for the same text go on sharing one.
void RenumberRows(const FoundRows& rows, const IDsInUse& others, std::string_view prefix, long long start,
                  const SourceFlavour& flavour);

// The replacement in a typecast, with its tail behind; unchanged when it has the typecast already.
std::string TypecastToPChar(const std::string& replacement);

} // namespace glotta
