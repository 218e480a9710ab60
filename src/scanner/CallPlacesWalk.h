// The walk over a unit that finds out for each literal whether a call could stand in its place.
#pragma once
#include "ide/ConditionalBranch.h"
#include "ide/SourceTokens.h"
#include "scanner/CallPlaces.h"

namespace glotta::places {

enum class Reason : std::uint8_t {
    None,
    CutsToken,
    Comment,
    Directive,
    Assembler,
    // Pascal
    AfterEnd,
    ConstSection,
    ResourceString,
    Variable,
    TypeSection,
    UsedUnit,
    ExportedName,
    External,
    DefaultParameter,
    Attribute,
    Guid,
    Deprecated,
    Message,
    Declaration,
    InlineConst,
    Range,
    SingleCharacter,
    CaseLabel,
    PCharArgument,
    PCharVariable,
    // C/C++
    FileScope,
    DefaultArgument,
    StaticInitialiser,
    ArrayInitialiser,
    Adjacent,
    CharPointer,
    CharPointerVariable,
    SizeOf,
    ConstantExpression,
    TemplateArgument,
    Count
};
std::string_view Phrase(Reason reason);

// A literal, or a stretch of text with quotes in it that is none: a comment, a directive, assembler.
struct Place {
    std::uint32_t begin, end;
    Reason reason = Reason::None;
    bool literal = false;
    bool joinedBefore = false, joinedBehind = false; // C/C++: adjacent literals and macros are one text
    std::uint8_t routine = 0;                        // whose pointer argument the literal is; 0: of none
};

struct Walked {
    std::vector<Place> places; // ascending
    std::vector<CallPlaces::ConstSection> constSections;
};
Walked WalkPascal(std::string_view text);
Walked WalkCpp(std::string_view text);

// Nesting and conditional branches of a walk. State has the members `parent` and `level`, 0 at first; frames are never
// changed once pushed, so that a branch can be resumed at the cost of one copy, however deep the nesting.
template <class State> class Nesting {
public:
    void Push(const State& outer, State& inner) {
        if (outer.level == deepest) {
            inner.parent = outer.parent;
            return;
        }
        frames_.push_back(outer);
        inner.parent = static_cast<std::uint32_t>(frames_.size());
        inner.level = outer.level + 1;
    }
    bool Pop(State& state) {
        if (!state.parent) return false;
        const std::uint32_t top = state.parent;
        state = frames_[top - 1];
        if (branches_.empty() && top == frames_.size()) frames_.pop_back();
        return true;
    }

    // The state in which the present branch began; null outside branches.
    const State* BranchStart() const { return branches_.empty() ? nullptr : &branches_.back(); }
    void BeginBranch(const State& state) { branches_.push_back(state); }
    void EndBranch() {
        if (!branches_.empty()) branches_.pop_back();
    }

private:
    // No source nests so deep; it bounds what resuming and leaving frames again and again can cost.
    static constexpr std::uint32_t deepest = 1000;

    std::vector<State> frames_, branches_;
};

// What a walk goes over and finds.
template <class WalkState, char Quote> class WalkOf {
protected:
    explicit WalkOf(std::string_view text) : text_(text) {}

    std::string_view TextOf(const Token& token) const { return text_.substr(token.begin, token.end - token.begin); }
    // Text in which a quote opens no literal.
    void Cover(const Token& token, Reason reason) {
        if (TextOf(token).find(Quote) != std::string_view::npos)
            out_.places.push_back({token.begin, token.end, reason});
    }

    std::string_view text_;
    Walked out_;
    WalkState s_;
    Nesting<WalkState> nesting_;
};

} // namespace glotta::places
