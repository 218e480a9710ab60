#include "ide/UnitEditsPascalStructure.h"

#include "platform/Text.h"

#include <algorithm>
#include <unordered_set>

namespace glotta::pascal {

namespace {

using Words = std::unordered_set<std::string_view, TextHash, TextEqual>;

bool IsRoutineWord(const UnitTokens& tokens, std::size_t index) {
    static const Words words = {"procedure", "function", "constructor", "destructor"};
    return tokens.IsWord(index) &&
           (words.contains(tokens[index]) || (tokens.Is(index, "operator") && tokens.Is(index - 1, "class")));
}

bool IsVisibility(const UnitTokens& tokens, std::size_t index) {
    static const Words words = {"private", "protected", "public", "published", "strict", "automated"};
    return tokens.IsWord(index) && words.contains(tokens[index]) && !tokens.IsSymbol(index + 1, ":") &&
           !tokens.IsSymbol(index + 1, ",");
}

bool IsRoutineDirective(const UnitTokens& tokens, std::size_t index) {
    static const Words words = {
        "overload",   "stdcall",      "cdecl",     "register",    "pascal",       "safecall",
        "inline",     "assembler",    "far",       "near",        "export",       "platform",
        "deprecated", "library",      "varargs",   "reintroduce", "virtual",      "dynamic",
        "override",   "abstract",     "static",    "message",     "forward",      "external",
        "local",      "unsafe",       "dispid",    "delayed",     "experimental", "final",
        "winapi",     "nostackframe", "interrupt", "noreturn",    "default",      "nodefault"};
    return tokens.IsWord(index) && words.contains(tokens[index]) && !tokens.IsSymbol(index + 1, ":");
}

} // namespace

UnitStructure::UnitStructure(std::string_view text) : tokens_(text, false), closing_(tokens_.Count(), None) {
    for (std::string_view word : {"unit", "program", "library", "package"})
        if (tokens_.Is(0, word)) heading_ = 0;
    Walk();
}

bool UnitStructure::StartsClass(std::size_t index) const {
    const std::size_t before = index > 0 && tokens_.Is(index - 1, "packed") ? index - 2 : index - 1;
    return index > 0 && tokens_.IsSymbol(before, "=");
}

void UnitStructure::Walk() {
    enum Kind { Opens, Ends, OpensCase, OpensRecord, OpensClass, Section, Lower };
    static const std::unordered_map<std::string_view, Kind, TextHash, TextEqual> words = {
        {"begin", Opens},
        {"try", Opens},
        {"asm", Opens},
        {"case", OpensCase},
        {"record", OpensRecord},
        {"class", OpensClass},
        {"object", OpensClass},
        {"interface", OpensClass},
        {"dispinterface", OpensClass},
        {"end", Ends},
        {"initialization", Section},
        {"finalization", Section},
        {"implementation", Lower}};
    for (std::size_t i = 0; i < tokens_.Count(); ++i) {
        if (!tokens_.IsWord(i) || (i > 0 && (tokens_.IsSymbol(i - 1, ".") || tokens_.IsSymbol(i - 1, "&"))))
            continue;
        if (open_.empty() && IsRoutineWord(tokens_, i)) {
            OpenRoutine(i);
            continue;
        }
        const auto word = words.find(tokens_[i]);
        if (word == words.end()) continue;
        switch (word->second) {
        case Opens:
            Open(i);
            break;
        case OpensCase: // the variant part of a record has no end of its own
            if (open_.empty() || tokens_.Is(open_.back(), "begin") || tokens_.Is(open_.back(), "try") ||
                tokens_.Is(open_.back(), "case"))
                open_.push_back(i);
            break;
        case OpensRecord:
            if (!(tokens_.IsSymbol(i - 1, ":") &&
                  (tokens_.IsSymbol(i + 1, ">") || tokens_.IsSymbol(i + 1, ",") ||
                   tokens_.IsSymbol(i + 1, ";"))))
                open_.push_back(i);
            break;
        case OpensClass:
            if (tokens_.Is(i, "interface") && interface_ == None && open_.empty() && !StartsClass(i))
                interface_ = i;
            else if (StartsClass(i))
                OpenClass(i);
            break;
        case Section:
            open_.clear();
            pending_.clear();
            if (endOfDeclarations_ == None) endOfDeclarations_ = i;
            break;
        case Lower:
            open_.clear();
            pending_.clear();
            if (implementation_ == None) implementation_ = i;
            break;
        case Ends:
            Close(i);
            break;
        }
    }
}

void UnitStructure::Open(std::size_t index) {
    if (open_.empty() && pending_.empty() && endOfDeclarations_ == None &&
        (implementation_ != None || interface_ == None) && tokens_.Is(index, "begin"))
        endOfDeclarations_ = index; // the unit's own statements
    open_.push_back(index);
}

void UnitStructure::Close(std::size_t index) {
    if (open_.empty()) {
        if (tokens_.IsSymbol(index + 1, ".") && endOfDeclarations_ == None) endOfDeclarations_ = index;
        return;
    }
    const std::size_t opened = open_.back();
    open_.pop_back();
    closing_[opened] = index;
    if (open_.empty() && !pending_.empty() && (tokens_.Is(opened, "begin") || tokens_.Is(opened, "asm"))) {
        routines_.push_back({pending_.back(), opened, index});
        pending_.pop_back();
    }
    for (auto type = classes_.rbegin(); type != classes_.rend() && tokens_.Is(opened, "class"); ++type)
        if (type->end == opened) { // held the opening token until now
            type->end = index;
            break;
        }
}

void UnitStructure::OpenClass(std::size_t index) {
    if (index < 3) return;
    std::size_t next = index + 1;
    while (tokens_.Is(next, "abstract") || tokens_.Is(next, "sealed") || tokens_.Is(next, "external"))
        ++next;
    if (tokens_.Is(next, "of") || tokens_.IsSymbol(next, ";")) return;
    const bool helper = tokens_.Is(next, "helper");
    if (helper) ++next;
    Class type;
    type.headEnd = next - 1;
    type.parent = "TObject";
    type.nesting = static_cast<unsigned>(open_.size());
    if (tokens_.IsSymbol(next, "(")) {
        type.headEnd = tokens_.Closing(next, tokens_.Count());
        std::size_t word = next + 1;
        while (tokens_.IsSymbol(word + 1, "."))
            word += 2;
        type.parent = std::string(tokens_[word]);
    }
    if (helper && tokens_.Is(type.headEnd + 1, "for")) {
        type.headEnd += 2;
        while (tokens_.IsSymbol(type.headEnd + 1, "."))
            type.headEnd += 2;
    }
    type.name = index - (tokens_.Is(index - 1, "packed") ? 3 : 2);
    if (tokens_.IsSymbol(type.name, ">"))
        while (type.name > 0 && !tokens_.IsSymbol(type.name--, "<"))
            ;
    const bool hasMembers = !tokens_.IsSymbol(type.headEnd + 1, ";");
    if (hasMembers) {
        type.end = index;
        open_.push_back(index);
    }
    if (tokens_.Is(index, "class") && !helper) classes_.push_back(std::move(type));
}

void UnitStructure::OpenRoutine(std::size_t& index) {
    const bool isType = index > 0 && (tokens_.IsSymbol(index - 1, "=") || tokens_.IsSymbol(index - 1, ":") ||
                                      tokens_.Is(index - 1, "to") || tokens_.Is(index - 1, "type"));
    if (isType || !tokens_.IsWord(index + 1) || (implementation_ == None && interface_ != None)) return;
    const std::size_t semicolon = Semicolon(index, tokens_.Count());
    bool bodiless = false;
    const std::size_t behind = BehindDirectives(semicolon + 1, &bodiless);
    if (!bodiless) pending_.push_back(index);
    index = std::max(index, std::min(behind, tokens_.Count()) - 1);
}

std::size_t UnitStructure::Semicolon(std::size_t index, std::size_t end) const {
    for (unsigned depth = 0; index < end; ++index) {
        if (tokens_.IsSymbol(index, "(") || tokens_.IsSymbol(index, "["))
            ++depth;
        else if ((tokens_.IsSymbol(index, ")") || tokens_.IsSymbol(index, "]")) && depth > 0)
            --depth;
        else if (depth == 0 && tokens_.IsSymbol(index, ";"))
            break;
        else if (depth == 0)
            index = Skip(index);
    }
    return index;
}

// `index` behind the semicolon of a heading: behind the directives that follow it.
std::size_t UnitStructure::BehindDirectives(std::size_t index, bool* bodiless) const {
    while (IsRoutineDirective(tokens_, index)) {
        if (bodiless && (tokens_.Is(index, "forward") || tokens_.Is(index, "external"))) *bodiless = true;
        index = Semicolon(index, tokens_.Count()) + 1;
    }
    return index;
}

std::size_t UnitStructure::Skip(std::size_t index) const {
    return index < closing_.size() && closing_[index] != None ? closing_[index] : index;
}

const UnitStructure::Class* UnitStructure::FindClass(std::string_view name) const {
    const Class* found = nullptr;
    for (const Class& type : classes_) {
        const bool complete = type.end == None || tokens_.Is(type.end, "end");
        if (complete && SameText(tokens_[type.name], name) && (!found || type.nesting < found->nesting))
            found = &type;
    }
    return found && found->nesting == 0 ? found : nullptr;
}

std::vector<UnitStructure::Member> UnitStructure::Members(const Class& type) const {
    std::vector<Member> members;
    bool initial = true;
    for (std::size_t i = type.headEnd + 1; type.end != None && i < type.end;) {
        if (IsVisibility(tokens_, i)) {
            initial = false;
            ++i;
        } else {
            AddMember(members, i, type.end, initial);
        }
    }
    return members;
}

void UnitStructure::AddMember(std::vector<Member>& members, std::size_t& index, std::size_t end,
                              bool initial) const {
    Member member;
    member.initial = initial;
    member.first = index;
    while (tokens_.IsSymbol(index, "[")) // attributes
        index = tokens_.Closing(index, end) + 1;
    while (tokens_.Is(index, "class") || tokens_.Is(index, "var") || tokens_.Is(index, "threadvar") ||
           tokens_.Is(index, "const") || tokens_.Is(index, "type"))
        ++index;
    if (IsRoutineWord(tokens_, index)) {
        member.kind = MemberKind::Method;
        member.name = index + 1;
        member.last = BehindDirectives(Semicolon(index, end) + 1) - 1;
    } else {
        const bool property = tokens_.Is(index, "property");
        if (!property && (tokens_.IsSymbol(index + 1, ":") || tokens_.IsSymbol(index + 1, ",")))
            member.kind = MemberKind::Field;
        member.name = index + (property ? 1 : 0);
        member.last = Semicolon(index, end);
        if (property) member.last = BehindDirectives(member.last + 1) - 1;
    }
    member.last = std::max(member.first, std::min(member.last, end - 1));
    index = member.last + 1;
    members.push_back(member);
}

std::string_view UnitStructure::FindDeclared(const Class& type, std::string_view name,
                                             bool methodsOnly) const {
    for (const Member& member : Members(type)) {
        if (methodsOnly && member.kind != MemberKind::Method) continue;
        if (SameText(tokens_[member.name], name)) return tokens_[member.name];
        for (std::size_t i = member.name; member.kind == MemberKind::Field && tokens_.IsSymbol(i + 1, ",");
             i += 2)
            if (SameText(tokens_[i + 2], name)) return tokens_[i + 2];
    }
    // The other branches of conditional code hold declarations too.
    const std::size_t from = tokens_.Begin(type.name);
    const std::size_t to = type.end == None ? from : tokens_.Begin(type.end);
    const std::vector<Token>& others = tokens_.Alternatives();
    for (std::size_t i = 0; i + 1 < others.size(); ++i) {
        if (others[i].begin < from || others[i].begin > to) continue;
        const auto word = [&](std::size_t at) {
            return tokens_.Text().substr(others[at].begin, others[at].end - others[at].begin);
        };
        const bool routine =
            i > 0 && (SameText(word(i - 1), "procedure") || SameText(word(i - 1), "function"));
        if (SameText(word(i), name) &&
            (routine || (!methodsOnly && (word(i + 1) == ":" || word(i + 1) == ","))))
            return word(i);
    }
    return {};
}

const UnitStructure::Routine* UnitStructure::FindRoutine(std::string_view className,
                                                         std::string_view name) const {
    for (const Routine& routine : routines_)
        if (SameText(tokens_[routine.head + 1], className) && tokens_.IsSymbol(routine.head + 2, ".") &&
            SameText(tokens_[routine.head + 3], name) && !tokens_.IsSymbol(routine.head + 4, "."))
            return &routine;
    return nullptr;
}

std::vector<ByteRange> UnitStructure::MethodsOf(std::string_view className) const {
    std::vector<ByteRange> methods;
    for (const Routine& routine : routines_) {
        const bool ofClass = SameText(tokens_[routine.head + 1], className) && tokens_.IsSymbol(routine.head + 2, ".") &&
                             !tokens_.IsSymbol(routine.head + 4, ".");
        if (!ofClass || routine.end >= tokens_.Count() || (routine.head > 0 && tokens_.Is(routine.head - 1, "class")))
            continue;
        methods.push_back({static_cast<std::uint32_t>(tokens_.Begin(routine.head)),
                           static_cast<std::uint32_t>(tokens_.End(routine.end))});
    }
    std::sort(methods.begin(), methods.end(), [](ByteRange a, ByteRange b) { return a.begin < b.begin; });
    return methods;
}

std::vector<std::string> UnitStructure::ParameterNames(const Routine& routine) const {
    std::vector<std::string> names;
    const std::size_t open = routine.head + 4;
    if (!tokens_.IsSymbol(open, "(")) return names;
    const std::size_t close = tokens_.Closing(open, routine.begin);
    for (std::size_t i = open + 1; i < close; ++i)
        if (tokens_.IsWord(i) && (tokens_.IsSymbol(i + 1, ":") || tokens_.IsSymbol(i + 1, ",")))
            names.emplace_back(tokens_[i]);
    return names;
}

} // namespace glotta::pascal
