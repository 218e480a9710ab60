#include "scanner/UpdateStringsWiring.h"

#include "ide/UnitEdits.h"
#include "ide/UnitEditsPascalStructure.h"
#include "platform/Text.h"
#include "runtime/CustomLang.h"
#include "scanner/SourceFlavour.h"
#include "vcl/ClassCatalogue.h"

#include <algorithm>
#include <unordered_map>

namespace glotta {

namespace {

constexpr std::string_view UpdateStrings = "UpdateStrings";

class Wirer {
public:
    explicit Wirer(const WiringInput& input)
        : input_(input), flavour_(input.isCpp ? CppFlavour : PascalFlavour),
          tokens_(input.text, input.isCpp) {}

    Wiring Run() {
        const std::string_view byDefault = input_.dataModule ? "DatamoduleCreate" : "FormCreate";
        if (const auto body = Find({byDefault, input_.creationHandler})) {
            result_.creation = true;
            if (!Calls(*body)) result_.edits.push_back(tokens_.LineBehind(body->open, CallLine()));
        }
        if (const auto body = Find({input_.component + "ChangeLanguage", input_.languageHandler})) {
            result_.language = true;
            if (!Calls(*body)) InsertBeforeEnd(*body, CallLine() + "\r\n");
        }
        if (const auto body = Find({UpdateStrings})) {
            result_.updateStrings = true;
            Assign(*body);
        }
        return std::move(result_);
    }

private:
    std::string CallLine() const { return "  " + std::string(UpdateStrings) + (input_.isCpp ? "();" : ";"); }

    // The first of the methods that has a body.
    std::optional<MethodBody> Find(std::initializer_list<std::string_view> names) const {
        for (std::string_view name : names)
            for (const std::string& owner : {input_.className, "T" + input_.formName})
                if (auto body =
                        name.empty() ? std::nullopt : FindMethodBody(input_.text, input_.isCpp, owner, name))
                    return body;
        return std::nullopt;
    }

    std::size_t First(const MethodBody& body) const { return tokens_.IndexAt(body.open); }
    std::size_t Last(const MethodBody& body) const { return tokens_.IndexAt(body.close); }

    bool Same(std::size_t token, std::string_view name) const {
        return input_.isCpp ? tokens_[token] == name : SameText(tokens_[token], name);
    }

    bool Calls(const MethodBody& body) const {
        for (std::size_t i = First(body); i < Last(body); ++i)
            if (tokens_.IsWord(i) && Same(i, UpdateStrings)) return true;
        return false;
    }

    void InsertBeforeEnd(const MethodBody& body, const std::string& lines) {
        const std::size_t last = Last(body) - 1;
        if (!input_.isCpp && last >= First(body) && !tokens_.IsSymbol(last, ";"))
            result_.edits.push_back({tokens_.End(last), tokens_.End(last), ";"});
        if (tokens_.FirstOnLine(body.close)) {
            const std::size_t place = tokens_.LineStart(body.close);
            result_.edits.push_back({place, place, lines});
        } else {
            result_.edits.push_back({body.close, body.close, "\r\n" + lines});
        }
    }

    struct Expression {
        std::size_t first, end; // tokens
    };

    // What UpdateStrings assigns so far, by target in upper case.
    std::unordered_map<std::string, Expression> Assignments(const MethodBody& body) const {
        std::unordered_map<std::string, Expression> found;
        const std::string_view assign = input_.isCpp ? "=" : ":=";
        std::string target;
        for (std::size_t i = First(body); i < Last(body); ++i) {
            if (tokens_.IsWord(i) || tokens_.IsSymbol(i, ".")) {
                target += tokens_[i];
                continue;
            }
            if (tokens_.IsSymbol(i, assign) && !target.empty()) {
                std::size_t end = i + 1;
                while (end < Last(body) && !tokens_.IsSymbol(end, ";"))
                    ++end;
                found.try_emplace(Key(target), Expression{i + 1, end});
                i = end;
            }
            target.clear();
        }
        return found;
    }

    std::string Key(std::string_view target) const {
        return input_.isCpp ? std::string(target) : UpperCase(target);
    }

    // Only a look-up is brought up to date; what a person wrote stays.
    bool IsLookUp(const Expression& expression) const {
        if (expression.end < expression.first + 4 || !tokens_.IsSymbol(expression.end - 1, ")") ||
            !tokens_.IsSymbol(expression.end - 3, "("))
            return false;
        const std::string method = std::string(tokens_[expression.end - 4]) + "(";
        return tokens_.Kind(expression.end - 2) == TokenKind::String &&
               std::any_of(TextGetterNames.begin(), TextGetterNames.end(),
                           [&](std::string_view name) { return SameText(name, method); });
    }

    void Assign(const MethodBody& body) {
        const auto present = Assignments(body);
        std::string lines;
        for (const StringAssignment& assignment : input_.assignments) {
            const std::string wanted = input_.reference + std::string(flavour_.METHODPOINT) +
                                       input_.replaceMethod + std::string(flavour_.STRDELIM) + assignment.id +
                                       std::string(flavour_.STRDELIM) + ")";
            const auto found = present.find(Key(assignment.target));
            if (found == present.end()) {
                lines += "  " + assignment.target + (input_.isCpp ? " = " : " := ") + wanted + ";\r\n";
                continue;
            }
            if (found->second.first >= found->second.end || !IsLookUp(found->second)) continue;
            const std::size_t begin = tokens_.Begin(found->second.first),
                              end = tokens_.End(found->second.end - 1);
            if (input_.text.substr(begin, end - begin) != wanted)
                result_.edits.push_back({begin, end, wanted});
        }
        if (lines.empty()) return;
        const std::string_view inside = input_.text.substr(body.open, body.close - body.open);
        if (Trim(inside).empty() && tokens_.FirstOnLine(body.close))
            result_.edits.push_back({body.open, tokens_.LineStart(body.close), "\r\n" + lines});
        else
            InsertBeforeEnd(body, lines);
    }

    const WiringInput& input_;
    const SourceFlavour& flavour_;
    UnitTokens tokens_;
    Wiring result_;
};

} // namespace

Wiring WireUpdateStrings(const WiringInput& input) {
    return Wirer(input).Run();
}

std::string AssignmentTarget(std::string_view formUnit, std::string_view className, std::string_view constant,
                             std::string_view unitName) {
    const pascal::UnitStructure unit(formUnit);
    const pascal::UnitStructure::Class* type = unit.FindClass(className);
    const ClassCatalogue& catalogue = ClassCatalogue::BuiltIn();
    const bool hidden =
        type && (!unit.FindDeclared(*type, constant, false).empty() ||
                 catalogue.FindProperty(type->parent, constant) || catalogue.FindProperty("TForm", constant));
    return (hidden ? std::string(unitName) + "." : std::string()) + std::string(constant);
}

} // namespace glotta
