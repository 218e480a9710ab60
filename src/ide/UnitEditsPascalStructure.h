// The structure of an Object Pascal unit: sections, classes with their members, routines with their bodies.
#pragma once
#include "ide/UnitEditsTokens.h"

#include <string>
#include <string_view>
#include <vector>

namespace glotta::pascal {

// Indexes are tokens; None where there is no such token.
class UnitStructure {
public:
    static constexpr std::size_t None = UnitTokens::None;

    explicit UnitStructure(std::string_view text);

    struct Class {
        std::size_t name = None;
        std::size_t headEnd = None; // the last token of its heading
        std::size_t end = None;     // its `end`; None for "class(TForm);", which has no members
        std::string parent;         // without its unit
        unsigned nesting = 0;       // declared inside that many others
    };
    enum class MemberKind { Field, Method, Other };
    struct Member {
        MemberKind kind = MemberKind::Other;
        std::size_t first = None, last = None; // `last` is its semicolon
        std::size_t name = None;               // a field's first name
        bool initial = false;                  // before any visibility word
    };
    struct Routine {
        std::size_t head = None;              // "procedure"
        std::size_t begin = None, end = None; // of the body
    };

    const UnitTokens& Tokens() const { return tokens_; }
    // The heading's word: unit, program, library, package; None without a heading.
    std::size_t Heading() const { return heading_; }
    std::size_t Interface() const { return interface_; }
    std::size_t Implementation() const { return implementation_; }
    // What ends the declarations: initialization, finalization, the final begin, or the final end.
    std::size_t EndOfDeclarations() const { return endOfDeclarations_; }

    const Class* FindClass(std::string_view name) const;
    std::vector<Member> Members(const Class& type) const;
    // The identifier that declares `name` in the class, in whatever branch; empty when there is none.
    std::string_view FindDeclared(const Class& type, std::string_view name, bool methodsOnly) const;
    // The method's body in the implementation; nil when there is none.
    const Routine* FindRoutine(std::string_view className, std::string_view name) const;
    // The bodies of the class's instance methods.
    std::vector<ByteRange> MethodsOf(std::string_view className) const;
    // Names of the parameters in the heading of a routine.
    std::vector<std::string> ParameterNames(const Routine& routine) const;
    // The end of what is opened at `index`, else `index`.
    std::size_t Skip(std::size_t index) const;

private:
    void Walk();
    void Open(std::size_t index);
    void Close(std::size_t index);
    void OpenClass(std::size_t index);
    void OpenRoutine(std::size_t& index);
    bool StartsClass(std::size_t index) const;
    std::size_t BehindDirectives(std::size_t index, bool* bodiless = nullptr) const;
    std::size_t Semicolon(std::size_t index, std::size_t end) const;
    void AddMember(std::vector<Member>& members, std::size_t& index, std::size_t end, bool initial) const;

    UnitTokens tokens_;
    std::vector<std::size_t> closing_; // by opening token
    std::vector<std::size_t> open_;
    std::vector<std::size_t> pending_; // routines whose body is still to come
    std::vector<Class> classes_;
    std::vector<Routine> routines_;
    std::size_t heading_ = None, interface_ = None, implementation_ = None, endOfDeclarations_ = None;
};

} // namespace glotta::pascal
