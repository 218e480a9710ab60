#include "scanner/PCharDeclarations.h"

#include <algorithm>
#include <iterator>

namespace glotta {
namespace {

template <std::size_t Count> bool IsOneOf(std::string_view word, const std::string_view (&words)[Count]) {
    return std::any_of(std::begin(words), std::end(words),
                       [word](std::string_view each) { return SameText(word, each); });
}

// Fields of the records of the Windows programming interface.
bool IsWindowsPCharField(std::string_view name) {
    if (name.size() < 5) return false;
    static constexpr std::string_view prefixes[] = {"lpsz", "lpstr", "psz", "lpwsz", "pwsz"};
    static constexpr std::string_view names[] = {"lpVerb",     "lpFile",    "lpParameters", "lpDirectory",
                                                 "lpClass",    "lpDesktop", "lpTitle",      "lpTemplateName",
                                                 "dwTypeData", "pDocName",  "pOutputFile",  "pDatatype"};
    return std::any_of(std::begin(prefixes), std::end(prefixes),
                       [name](std::string_view prefix) { return StartsWithText(name, prefix); }) ||
           IsOneOf(name, names);
}

} // namespace

bool IsPCharType(std::string_view typeName) {
    static constexpr std::string_view types[] = {"PChar",  "PAnsiChar", "PWideChar", "PUTF8Char", "LPSTR",
                                                 "LPCSTR", "LPTSTR",    "LPCTSTR",   "LPWSTR",    "LPCWSTR"};
    if (typeName.size() < 5 || (typeName.back() | 0x20) != 'r') return false; // nearly all other types
    return IsOneOf(typeName, types);
}

void PCharNames::AddVariable(std::string_view name, bool isPointer) {
    if (isPointer)
        variables_.insert(name);
    else if (!variables_.empty())
        variables_.erase(name);
}

void PCharNames::AddRoutine(std::string_view name, std::uint32_t pointers) {
    if (const auto known = routines_.find(name); known != routines_.end())
        known->second &= pointers;
    else if (pointers)
        routines_.emplace(name, pointers);
}

bool PCharNames::IsVariable(std::string_view name) const {
    return variables_.contains(name) || IsWindowsPCharField(name);
}

bool PCharNames::IsParameter(std::string_view routine, unsigned position) const {
    const auto found = routines_.find(routine);
    return found != routines_.end() && position < 32 && (found->second >> position & 1);
}

void PCharDeclarations::BeginRoutine() {
    EndList();
    depth_ = 0;
}

void PCharDeclarations::TakeDeclared(std::string_view word) {
    if (typeFollows_) return TakeType(word);
    if (!listGoesOn_) names_.clear();
    listGoesOn_ = false;
    names_.push_back(word);
}

void PCharDeclarations::TakeInDeclaration(char symbol) {
    switch (symbol) {
    case ',':
        listGoesOn_ = true;
        return;
    case ':':
        typeFollows_ = true;
        return;
    case '(':
        if (depth_++ == 0) {
            routine_ = names_.empty() ? std::string_view() : names_.back();
            pointers_ = parameters_ = 0;
        }
        return EndList();
    case ')':
        if (depth_ > 0 && --depth_ == 0) known_.AddRoutine(routine_, pointers_);
        return EndList();
    case ';':
        if (depth_ == 1) parameters_ += static_cast<unsigned>(names_.size()); // without a type
        return EndList();
    default:
        typeFollows_ = false;
    }
}

void PCharDeclarations::TakeType(std::string_view type) {
    const bool isPChar = IsPCharType(type);
    for (const std::string_view name : names_)
        known_.AddVariable(name, isPChar);
    if (depth_ == 1)
        for (std::size_t i = 0; i < names_.size(); ++i, ++parameters_)
            if (isPChar && parameters_ < 32) pointers_ |= std::uint32_t{1} << parameters_;
    EndList();
}

void PCharDeclarations::EndList() {
    names_.clear();
    listGoesOn_ = typeFollows_ = false;
}

bool PCharDeclarations::AssignsToPChar(bool inPCharFunction) const {
    return assigns_ && (known_.IsVariable(word_) || (inPCharFunction && SameText(word_, "Result")));
}

} // namespace glotta
