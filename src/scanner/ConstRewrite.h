// Localizes string constants of Object Pascal units: which of them can become variables that UpdateStrings
// fills, and what their declarations become. Pure functions on the unit's text.
#pragma once
#include "ide/UnitEditsTokens.h"
#include "platform/Text.h"
#include "platform/TextEdit.h"
#include "scanner/CallPlaces.h"
#include "settings/SettingsValues.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace glotta {

// Identifiers that stand where a variable could not: in constant expressions, or as an argument that must be
// a PChar. Filled from one unit, or from all that see a constant.
class ConstantContexts {
public:
    void Add(const UnitTokens& unit);
    void Add(std::string_view unitText) { Add(UnitTokens(unitText, false)); }
    // Why the name must stay a constant, as a short English phrase; empty when it need not.
    std::string_view WhyConstant(std::string_view name) const;
    // How many constants of that name the units declare.
    unsigned Declared(std::string_view name) const;

private:
    class Walk;
    using Names = std::unordered_set<std::string, TextHash, TextEqual>;
    Names constant_, pointer_, alternative_;
    std::unordered_map<std::string, unsigned, TextHash, TextEqual> declared_;
};

struct FoundConstant {
    std::string_view name;
    std::size_t begin, end; // bytes of its literal expression
    std::string_view value; // decoded
};

class ConstRewrite {
public:
    // `formClass` is the class whose method UpdateStrings assigns the constants; empty when that lies in
    // another unit. `text` and `places` must outlive this.
    ConstRewrite(std::string_view text, const CallPlaces& places, std::string_view formClass);

    // Why the constant must be left alone, as a short English phrase; empty when it can be localized.
    // `others`: uses in further units, nil when not known.
    std::string WhyNotConst(const FoundConstant& constant, const ConstantContexts* others = nullptr) const;
    // Each declaration on one line, empty or with its value, marked as localized. Comments from between its
    // tokens move above it. Leaves alone what is not the whole declaration of one string constant.
    TextEdits Rewrite(const std::vector<FoundConstant>& constants, const SettingsValues& settings) const;

private:
    struct Declaration {
        std::size_t name = UnitTokens::None, semicolon = UnitTokens::None; // tokens
        std::string type;                                                  // empty when none is declared
    };
    std::string Find(const FoundConstant& constant, Declaration& declaration) const;
    std::string WhyNotPlace(std::size_t place) const;
    TextEdit RewriteOne(const Declaration& declaration, const FoundConstant& constant,
                        const SettingsValues& settings, bool nextIsRewritten) const;

    UnitTokens tokens_;
    const CallPlaces& places_;
    ConstantContexts contexts_;
    bool assignedHere_;
    std::size_t visibleEnd_;    // where declarations end that the assigning unit can reach
    std::size_t updateStrings_; // the method's body; None when it is not in this unit
};

// A Pascal literal of the value; line breaks part it into pieces.
std::string PascalLiteral(std::string_view value);

} // namespace glotta
