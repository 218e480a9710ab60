// Where a look-up call cannot stand although a literal does, and why.
#pragma once
#include "ide/SourceTokens.h"

#include <memory>

#include <string_view>
#include <vector>

namespace glotta {

// Built once per unit, for whose text it keeps a view; asked for each literal expression.
class CallPlaces {
public:
    CallPlaces(std::string_view text, bool isCpp);
    ~CallPlaces();
    // Why no call can replace bytes [begin, end), as a short English phrase ("in a const section", "label of
    // a case statement", "cuts a token"); empty when one can.
    std::string_view WhyNot(std::size_t begin, std::size_t end) const;

    // One declaration-level constant section: `begin` behind the word const, `end` at the next section
    // keyword.
    struct ConstSection {
        std::size_t begin, end;
        bool inRoutine, inClass;
    };
    const std::vector<ConstSection>& ConstSections() const;

private:
    struct Impl;
    std::unique_ptr<Impl> impl_;
};

} // namespace glotta
