// The declarations of a Pascal unit's constant sections.
#pragma once
#include "ide/SourceTokens.h"
#include "scanner/CallPlaces.h"

#include <string_view>
#include <vector>

namespace glotta {

class ConstDeclarations {
public:
    struct Declaration {
        std::string_view name;
        std::size_t valueBegin, end; // behind "=", at the closing semicolon
        bool aggregate;              // an array or a record
    };

    ConstDeclarations(std::string_view text, const std::vector<CallPlaces::ConstSection>& sections);

    // The declaration whose value holds the place; nil when there is none.
    const Declaration* At(std::size_t place) const;
    // Whether [begin, end) starts and ends where tokens of a value do.
    bool IsWholeTokens(std::size_t begin, std::size_t end) const;

private:
    void Read(std::string_view text, const CallPlaces::ConstSection& section);

    std::vector<Declaration> declarations_;
    std::vector<std::size_t> tokenBegins_, tokenEnds_;
};

} // namespace glotta
