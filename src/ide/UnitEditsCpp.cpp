// Includes, members and methods of C++Builder headers and sources.
#include "ide/UnitEdits.h"
#include "ide/UnitEditsCppStructure.h"
#include "platform/Error.h"
#include "platform/Text.h"

#include <algorithm>

namespace glotta::cpp {

namespace {

using Class = CppStructure::Class;
using Member = CppStructure::Member;

constexpr std::size_t None = CppStructure::None;
constexpr std::string_view Separator =
    "//---------------------------------------------------------------------------";

Class ClassOf(const CppStructure& unit, std::string_view className) {
    const Class type = unit.FindClass(className);
    if (type.name == None) throw Error("the header declares no class " + std::string(className));
    return type;
}

bool Declares(const CppStructure& unit, const std::vector<Member>& members, std::string_view name,
              bool methodsOnly) {
    return std::any_of(members.begin(), members.end(), [&](const Member& member) {
        return (member.method || !methodsOnly) && unit.Tokens()[member.name] == name;
    });
}

// The directive's word and argument: "#include <vcl.h>" gives "include" and "<vcl.h>".
std::pair<std::string_view, std::string_view> SplitDirective(std::string_view directive) {
    directive = Trim(directive.substr(std::min<std::size_t>(1, directive.size())));
    const std::size_t end = std::min(directive.find_first_of(" \t\"<"), directive.size());
    return {directive.substr(0, end), Trim(directive.substr(end))};
}

std::string_view BaseName(std::string_view argument) {
    if (argument.empty()) return argument;
    const char close = argument.front() == '<' ? '>' : '"';
    argument.remove_prefix(1);
    argument = argument.substr(0, argument.find(close));
    const std::size_t slash = argument.find_last_of("/\\");
    return slash == std::string_view::npos ? argument : argument.substr(slash + 1);
}

class Directives {
public:
    explicit Directives(const UnitTokens& tokens) : tokens_(tokens) {}

    std::size_t Count() const { return tokens_.Directives().size(); }
    std::size_t Begin(std::size_t index) const { return tokens_.Directives()[index].begin; }
    std::size_t End(std::size_t index) const { // without the line end
        std::size_t end = tokens_.Directives()[index].end;
        while (end > 0 && (tokens_.Text()[end - 1] == '\r' || tokens_.Text()[end - 1] == '\n'))
            --end;
        return end;
    }
    std::string_view Word(std::size_t index) const { return SplitDirective(TextOf(index)).first; }
    std::string_view Argument(std::size_t index) const { return SplitDirective(TextOf(index)).second; }
    // A header's guard opens a condition that always holds; it is the first directive.
    bool Guarded() const {
        return Count() > 1 && Word(0) == "ifndef" && Word(1) == "define" &&
               Argument(1).starts_with(Argument(0).substr(0, Argument(0).find_first_of(" \t/")));
    }

private:
    std::string_view TextOf(std::size_t index) const {
        return tokens_.Text().substr(Begin(index), End(index) - Begin(index));
    }
    const UnitTokens& tokens_;
};

// Behind the last include that holds under all conditions and stands before the first code; without one
// behind the guard, or before everything that is not a comment.
TextEdit InsertInclude(const UnitTokens& tokens, const Directives& directives, const std::string& line) {
    const std::size_t code = tokens.Count() > 0 ? tokens.Begin(0) : tokens.Text().size();
    const unsigned outer = directives.Guarded() ? 1 : 0;
    std::size_t last = None;
    for (std::size_t i = 0; i < directives.Count() && directives.Begin(i) < code; ++i)
        if (directives.Word(i) == "include" && tokens.Depth(directives.Begin(i)) == outer) last = i;
    if (last == None && outer == 1) last = 1;
    if (last != None) return tokens.LineBehind(directives.End(last), line);
    const std::size_t first = std::min(code, directives.Count() > 0 ? directives.Begin(0) : code);
    const std::size_t place = tokens.LineStart(first);
    return {place, place, line + "\r\n"};
}

std::string MemberIndent(const UnitTokens& tokens, const Class& type, const std::vector<Member>& members) {
    for (const Member& member : members)
        if (member.published && tokens.FirstOnLine(tokens.Begin(member.first)))
            return tokens.Indent(tokens.Begin(member.first));
    return tokens.Indent(tokens.Begin(type.name)) + "        ";
}

// Behind the member `last` of the __published part, or at its start; a class without such a part gets one.
TextEdits Declare(const UnitTokens& tokens, const Class& type, const std::vector<Member>& members,
                  std::size_t published, const Member* last, const std::string& declaration) {
    const std::string line = MemberIndent(tokens, type, members) + declaration;
    const unsigned depth = tokens.Depth(tokens.Begin(type.close));
    if (published == None) {
        const bool membersFirst = !members.empty() && members.front().first == type.open + 1;
        const std::string label = tokens.Indent(tokens.Begin(type.name)) + "__published:\r\n";
        return {
            tokens.LineBehind(tokens.End(type.open), label + line + (membersFirst ? "\r\nprivate:" : ""))};
    }
    const std::size_t behind = tokens.End(last ? last->last : published);
    return {tokens.LineBehind(tokens.LeaveConditionals(behind, depth), line)};
}

const Member* LastPublished(const UnitTokens& tokens, const Class& type, const std::vector<Member>& members,
                            bool fieldsOnly) {
    const unsigned depth = tokens.Depth(tokens.Begin(type.close));
    const Member* found = nullptr;
    for (const Member& member : members) {
        if (member.published && fieldsOnly && member.method) break;
        if (member.published && tokens.Depth(tokens.End(member.last)) <= depth)
            found = &member;
        else if (!member.published && found)
            break; // the first __published part only
    }
    return found;
}

} // namespace

std::string ClassParent(std::string_view header, std::string_view className) {
    return CppStructure(header).FindClass(className).parent;
}

TextEdits AddInclude(std::string_view text, std::string_view headerName, bool angleBrackets) {
    const UnitTokens tokens(text, true);
    const Directives directives(tokens);
    const std::string quoted =
        angleBrackets ? "<" + std::string(headerName) + ">" : "\"" + std::string(headerName) + "\"";
    for (std::size_t i = 0; i < directives.Count(); ++i)
        if (directives.Word(i) == "include" && SameText(BaseName(directives.Argument(i)), BaseName(quoted)))
            return {};
    return {InsertInclude(tokens, directives, "#include " + quoted)};
}

TextEdits AddMember(std::string_view header, std::string_view className, std::string_view name,
                    std::string_view type) {
    const CppStructure unit(header);
    const Class owner = ClassOf(unit, className);
    std::size_t published;
    const std::vector<Member> members = unit.Members(owner, &published);
    if (Declares(unit, members, name, false)) return {};
    return Declare(unit.Tokens(), owner, members, published,
                   LastPublished(unit.Tokens(), owner, members, true),
                   std::string(type) + " *" + std::string(name) + ";");
}

TextEdits RemoveMember(std::string_view header, std::string_view className, std::string_view name) {
    const CppStructure unit(header);
    const UnitTokens& tokens = unit.Tokens();
    for (const Member& member : unit.Members(ClassOf(unit, className))) {
        if (member.method || tokens[member.name] != name) continue;
        for (std::size_t i = member.first; i < member.last; ++i)
            if (tokens.IsSymbol(i, ",")) return {};
        return {tokens.Without(tokens.Begin(member.first), tokens.End(member.last))};
    }
    return {};
}

TextEdits RenameMember(std::string_view header, std::string_view className, std::string_view name,
                       std::string_view newName) {
    const CppStructure unit(header);
    for (const Member& member : unit.Members(ClassOf(unit, className)))
        if (!member.method && unit.Tokens()[member.name] == name)
            return {{unit.Tokens().Begin(member.name), unit.Tokens().End(member.name), std::string(newName)}};
    return {};
}

TextEdits AddMethodDeclaration(std::string_view header, std::string_view className, std::string_view name,
                               std::string_view parameters) {
    const CppStructure unit(header);
    const Class owner = ClassOf(unit, className);
    std::size_t published;
    const std::vector<Member> members = unit.Members(owner, &published);
    if (Declares(unit, members, name, true)) return {};
    return Declare(unit.Tokens(), owner, members, published,
                   LastPublished(unit.Tokens(), owner, members, false),
                   "void __fastcall " + std::string(name) + "(" + std::string(parameters) + ");");
}

TextEdits AddMethodBody(std::string_view source, std::string_view className, std::string_view name,
                        std::string_view parameters) {
    const CppStructure unit(source);
    if (unit.FindBody(className, name).open != None) return {};
    const std::size_t written = TrimRight(source).size();
    const std::size_t lastLine = unit.Tokens().LineStart(written);
    std::string body = source.empty() || source.ends_with('\n') ? "" : "\r\n";
    body += source.substr(lastLine, written - lastLine).starts_with("//---")
                ? std::string(source.substr(written).find("\n\r\n") == std::string_view::npos ? "\r\n" : "")
                : std::string(Separator) + "\r\n\r\n";
    body += "void __fastcall " + std::string(className) + "::" + std::string(name) + "(" +
            std::string(parameters) + ")\r\n{\r\n\r\n}\r\n" + std::string(Separator) + "\r\n";
    return {{source.size(), source.size(), std::move(body)}};
}

std::string FindMethod(std::string_view header, std::string_view className, std::string_view name) {
    const CppStructure unit(header);
    const Class type = unit.FindClass(className);
    if (type.name == None || !Declares(unit, unit.Members(type), name, true)) return {};
    return std::string(name);
}

} // namespace glotta::cpp
