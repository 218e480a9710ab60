// The uses clauses of Object Pascal units and projects.
#include "ide/UnitEdits.h"
#include "ide/UnitEditsPascalStructure.h"
#include "platform/Error.h"
#include "platform/Text.h"

#include <algorithm>

namespace glotta::pascal {

namespace {

constexpr std::size_t None = UnitStructure::None;

// The line length at which the IDE wraps a uses clause.
constexpr std::size_t LineLimit = 80;

// Units of the run-time library may be named with or without their scope.
std::string_view WithoutScope(std::string_view unit) {
    for (std::string_view scope :
         {"Vcl.", "System.", "Winapi.", "Data.", "Datasnap.", "Xml.", "Soap.", "Bde."})
        if (StartsWithText(unit, scope)) return unit.substr(scope.size());
    return unit;
}

bool SameUnit(std::string_view a, std::string_view b) {
    return SameText(WithoutScope(a), WithoutScope(b));
}

struct Item {
    std::string name;
    std::size_t begin, end; // bytes of name and "in" part
};

struct Clause {
    std::size_t begin = 0, behindWord = 0; // of the word uses
    std::size_t end = 0;                   // the semicolon
    std::vector<Item> items;
};

// Where a section's uses clauses stand or would stand: behind `interface`, `implementation` or the project's
// heading. Branches of conditional code may hold one each.
struct Section {
    std::size_t head = None; // token behind which a clause is opened
    std::vector<Clause> clauses;
};

// The code behind a place in order, of all branches.
class AllBranches {
public:
    AllBranches(const UnitTokens& tokens, std::size_t place) : tokens_(tokens), next_(tokens.IndexAt(place)) {
        while (other_ < tokens.Alternatives().size() && tokens.Alternatives()[other_].begin < place)
            ++other_;
        Advance();
    }
    bool AtEnd() const { return end_ == 0; }
    std::size_t Begin() const { return begin_; }
    std::size_t End() const { return end_; }
    std::string_view Word() const { return tokens_.Text().substr(begin_, end_ - begin_); }
    void Advance() {
        const std::vector<Token>& others = tokens_.Alternatives();
        const bool hasOther = other_ < others.size();
        if (next_ < tokens_.Count() && (!hasOther || tokens_.Begin(next_) < others[other_].begin)) {
            begin_ = tokens_.Begin(next_);
            end_ = tokens_.End(next_++);
        } else {
            begin_ = hasOther ? others[other_].begin : 0;
            end_ = hasOther ? others[other_++].end : 0;
        }
    }

private:
    const UnitTokens& tokens_;
    std::size_t next_, other_ = 0, begin_ = 0, end_ = 0;
};

void AddToken(Clause& clause, bool& expectsName, const AllBranches& code) {
    const std::string_view word = code.Word();
    if (word == "," || word == ";") {
        expectsName = true;
        return;
    }
    if (expectsName) {
        clause.items.push_back({std::string(word), code.Begin(), code.End()});
        expectsName = false;
        return;
    }
    Item& item = clause.items.back();
    if (word == "." || item.name.ends_with('.')) item.name += word;
    item.end = code.End();
}

Clause ReadClause(const UnitTokens& tokens, AllBranches& code) {
    Clause clause;
    clause.begin = code.Begin();
    clause.behindWord = code.End();
    const unsigned depth = tokens.Depth(clause.begin);
    bool expectsName = true;
    for (code.Advance(); !code.AtEnd() && !SameText(code.Word(), "uses"); code.Advance()) {
        AddToken(clause, expectsName, code);
        if (code.Word() != ";") continue;
        clause.end = code.Begin();
        if (tokens.Depth(clause.end) <= depth) {
            code.Advance();
            break;
        }
    }
    return clause;
}

Section ReadSection(const UnitTokens& tokens, std::size_t head) {
    Section section;
    section.head = head;
    if (head == None) return section;
    AllBranches code(tokens, tokens.End(head));
    while (!code.AtEnd() && SameText(code.Word(), "uses"))
        section.clauses.push_back(ReadClause(tokens, code));
    return section;
}

std::size_t HeadOfProject(const UnitStructure& unit) {
    const UnitTokens& tokens = unit.Tokens();
    if (unit.Heading() == None || tokens.Is(unit.Heading(), "package")) return None;
    for (std::size_t i = unit.Heading(); i < tokens.Count(); ++i)
        if (tokens.IsSymbol(i, ";")) return i;
    return None;
}

Section InterfaceOf(const UnitStructure& unit) {
    return ReadSection(unit.Tokens(), unit.Interface() != None ? unit.Interface() : HeadOfProject(unit));
}

Section ImplementationOf(const UnitStructure& unit) {
    return unit.Implementation() != None ? ReadSection(unit.Tokens(), unit.Implementation()) : Section();
}

struct Found {
    const Clause* clause = nullptr;
    const Item* item = nullptr;
};

Found FindItem(const Section& section, std::string_view unit) {
    for (const Clause& clause : section.clauses)
        for (const Item& item : clause.items)
            if (SameUnit(item.name, unit)) return {&clause, &item};
    return {};
}

// Behind the item, and behind the form's name that a project gives in a comment.
std::size_t BehindItem(const UnitTokens& tokens, const Clause& clause, const Item& item) {
    std::size_t end = item.end;
    for (const Token& comment : tokens.Comments())
        if (comment.begin >= end && comment.end <= clause.end && tokens.Text()[comment.begin] == '{' &&
            tokens.Text().substr(end, comment.begin - end).find_first_not_of(" \t") == std::string_view::npos)
            end = comment.end;
    return end;
}

TextEdit AppendItem(const UnitTokens& tokens, const Clause& clause, const Item& last, std::string_view unit) {
    const std::size_t place = BehindItem(tokens, clause, last);
    const std::size_t column =
        CharCount(tokens.Text().substr(tokens.LineStart(place), place - tokens.LineStart(place)));
    const bool oneToALine = &last != &clause.items.front() && tokens.FirstOnLine(last.begin) &&
                            tokens.FirstOnLine((&last - 1)->begin);
    if (!oneToALine && column + unit.size() + 3 <= LineLimit) return {place, place, ", " + std::string(unit)};
    const std::string indent = tokens.FirstOnLine(last.begin) ? tokens.Indent(last.begin) : "  ";
    return {place, place, ",\r\n" + indent + std::string(unit)};
}

TextEdit AddTo(const UnitTokens& tokens, const Clause& clause, std::string_view unit) {
    const unsigned depth = tokens.Depth(clause.begin);
    for (auto item = clause.items.rbegin(); item != clause.items.rend(); ++item)
        if (tokens.Depth(item->begin) <= depth) return AppendItem(tokens, clause, *item, unit);
    return {clause.behindWord, clause.behindWord, " " + std::string(unit) + ","};
}

// The {$ENDIF} of a condition that holds nothing behind the clause and has no {$ELSE}; None otherwise.
std::size_t EndOfLoneCondition(const UnitTokens& tokens, const Clause& clause) {
    const AllBranches code(tokens, clause.end + 1);
    const auto directive = std::find_if(tokens.Directives().begin(), tokens.Directives().end(),
                                        [&](const Token& token) { return token.begin > clause.end; });
    if (directive == tokens.Directives().end() || (!code.AtEnd() && code.Begin() < directive->begin) ||
        tokens.Depth(directive->end) >= tokens.Depth(clause.end))
        return None;
    return directive->begin;
}

TextEdits AddTo(const UnitTokens& tokens, const Section& section, std::string_view unit) {
    if (section.head == None)
        throw Error("there is no place for a uses clause that names " + std::string(unit));
    const std::string newClause = "uses\r\n  " + std::string(unit) + ";";
    if (section.clauses.empty()) return {tokens.LineBehind(tokens.End(section.head), "\r\n" + newClause)};
    TextEdits edits;
    for (const Clause& clause : section.clauses)
        edits.push_back(AddTo(tokens, clause, unit));
    const Clause& only = section.clauses.front();
    if (section.clauses.size() == 1 && tokens.Depth(only.begin) > tokens.Depth(tokens.Begin(section.head)))
        if (const std::size_t endif = EndOfLoneCondition(tokens, only); endif != None)
            edits.push_back({endif, endif, "{$ELSE}\r\n" + newClause + "\r\n"});
    return edits;
}

// Removes an item with one of its commas, or the clause with its last item.
TextEdit RemoveItem(const UnitTokens& tokens, const Clause& clause, const Item& item) {
    if (clause.items.size() == 1) {
        const std::size_t begin = tokens.LineStart(clause.begin);
        std::size_t end = tokens.RestOfLine(clause.end + 1);
        while (end < tokens.Text().size() && (tokens.Text()[end] == '\r' || tokens.Text()[end] == '\n'))
            ++end;
        if (tokens.Depth(begin) == tokens.Depth(end) && tokens.FirstOnLine(clause.begin))
            return {begin, end, ""};
        return {clause.begin, clause.end + 1, ""};
    }
    const std::size_t behind = tokens.IndexAt(item.end);
    const std::size_t at = tokens.IndexAt(item.begin);
    const bool sameBranch = tokens.Depth(tokens.Begin(behind)) == tokens.Depth(item.begin);
    if (tokens.IsSymbol(behind, ",") && sameBranch) {
        std::size_t end = tokens.End(behind);
        while (end < tokens.Text().size() && (tokens.Text()[end] == ' ' || tokens.Text()[end] == '\t'))
            ++end;
        return {item.begin, end, ""};
    }
    if (at > 0 && tokens.IsSymbol(at - 1, ",") &&
        tokens.Depth(tokens.Begin(at - 1)) == tokens.Depth(item.begin))
        return {tokens.Begin(at - 1), item.end, ""};
    throw Error("the implementation uses " + item.name + " under a condition, so the interface cannot");
}

} // namespace

std::string UnitName(std::string_view text) {
    const UnitTokens tokens(text, false);
    std::string name;
    for (std::string_view word : {"unit", "program", "library", "package"})
        if (tokens.Is(0, word)) name = std::string(tokens[1]);
    for (std::size_t i = 2; !name.empty() && tokens.IsSymbol(i, "."); i += 2)
        name += '.' + std::string(tokens[i + 1]);
    return name;
}

std::vector<std::string> UsedUnits(std::string_view text, bool interfaceOnly) {
    const UnitStructure unit(text);
    std::vector<std::string> names;
    for (const Section& section : {InterfaceOf(unit), interfaceOnly ? Section() : ImplementationOf(unit)})
        for (const Clause& clause : section.clauses)
            for (const Item& item : clause.items)
                names.push_back(item.name);
    return names;
}

TextEdits AddInterfaceUses(std::string_view text, std::string_view unit) {
    const UnitStructure structure(text);
    const Section section = InterfaceOf(structure);
    if (FindItem(section, unit).item || SameText(UnitName(text), unit)) return {};
    TextEdits edits = AddTo(structure.Tokens(), section, unit);
    // A unit named in both clauses does not compile.
    const Section lower = ImplementationOf(structure);
    if (const Found found = FindItem(lower, unit); found.item)
        edits.push_back(RemoveItem(structure.Tokens(), *found.clause, *found.item));
    return edits;
}

TextEdits AddImplementationUses(std::string_view text, std::string_view unit) {
    const UnitStructure structure(text);
    const Section upper = InterfaceOf(structure), lower = ImplementationOf(structure);
    if (FindItem(upper, unit).item || FindItem(lower, unit).item || SameText(UnitName(text), unit)) return {};
    return AddTo(structure.Tokens(), structure.Interface() == None ? upper : lower, unit);
}

} // namespace glotta::pascal
