// The structure of a C++Builder header or source: classes with the members of their __published part, method
// bodies.
#pragma once
#include "ide/UnitEditsTokens.h"

#include <string>
#include <string_view>
#include <vector>

namespace glotta::cpp {

// Indexes are tokens; None where there is no such token.
class CppStructure {
public:
    static constexpr std::size_t None = UnitTokens::None;

    explicit CppStructure(std::string_view text) : tokens_(text, true) {}

    struct Class {
        std::size_t name = None, open = None, close = None;
        std::string parent;
    };
    struct Member {
        bool method = false;
        std::size_t first = None, last = None, name = None;
        bool published = false;
    };
    struct Body {
        std::size_t parameters = None; // its "("
        std::size_t open = None, close = None;
    };

    const UnitTokens& Tokens() const { return tokens_; }
    Class FindClass(std::string_view name) const; // `name` is None when it is not defined here
    // `published` receives the colon of the first __published label, None without one.
    std::vector<Member> Members(const Class& type, std::size_t* published = nullptr) const;
    Body FindBody(std::string_view className, std::string_view name) const;
    std::vector<std::string> ParameterNames(const Body& body) const;
    // Constructors with their initialiser lists included.
    std::vector<ByteRange> MethodsOf(std::string_view className) const;

private:
    Class ClassAt(std::size_t keyword) const;
    UnitTokens tokens_;
};

} // namespace glotta::cpp
