// Classes, fields and methods of Object Pascal units.
#include "ide/UnitEdits.h"
#include "ide/UnitEditsPascalStructure.h"
#include "platform/Error.h"
#include "platform/Text.h"

#include <algorithm>

namespace glotta::pascal {

namespace {

using Class = UnitStructure::Class;
using Member = UnitStructure::Member;
using MemberKind = UnitStructure::MemberKind;

constexpr std::size_t None = UnitStructure::None;

const Class& ClassOf(const UnitStructure& unit, std::string_view className) {
    const Class* type = unit.FindClass(className);
    if (!type) throw Error("the unit declares no class " + std::string(className));
    return *type;
}

// The indent of a class's members: that of its first one on a line of its own.
std::string MemberIndent(const UnitTokens& tokens, const Class& type, const std::vector<Member>& members) {
    for (const Member& member : members)
        if (member.initial && tokens.FirstOnLine(tokens.Begin(member.first)))
            return tokens.Indent(tokens.Begin(member.first));
    return tokens.Indent(tokens.Begin(type.name)) + "  ";
}

// Adds a declaration behind the member `last`, or behind the heading.
TextEdits Declare(const UnitTokens& tokens, const Class& type, const std::vector<Member>& members,
                  const Member* last, const std::string& declaration) {
    const std::string line = MemberIndent(tokens, type, members) + declaration;
    if (type.end == None) {
        const std::size_t place = tokens.End(type.headEnd);
        return {{place, place, "\r\n" + line + "\r\n" + tokens.Indent(tokens.Begin(type.name)) + "end"}};
    }
    const unsigned depth = tokens.Depth(tokens.Begin(type.end));
    const std::size_t behind = tokens.End(last ? last->last : type.headEnd);
    return {tokens.LineBehind(tokens.LeaveConditionals(behind, depth), line)};
}

// The last field that stands before every method and under no condition; a field must not follow a method.
const Member* LastField(const UnitTokens& tokens, const Class& type, const std::vector<Member>& members) {
    const Member* found = nullptr;
    for (const Member& member : members) {
        if (!member.initial || member.kind != MemberKind::Field) break;
        if (tokens.Depth(tokens.End(member.last)) <= tokens.Depth(tokens.Begin(type.end))) found = &member;
    }
    return found;
}

// An empty body before whatever ends the unit's declarations.
TextEdit AddBody(const UnitStructure& unit, const std::string& heading) {
    const UnitTokens& tokens = unit.Tokens();
    const std::size_t end = unit.EndOfDeclarations();
    if (end == None) throw Error("the unit has no end before which a method could stand");
    const unsigned outer =
        unit.Implementation() == None ? 0 : tokens.Depth(tokens.Begin(unit.Implementation()));
    const std::size_t keyword = tokens.BeforeConditionals(tokens.Begin(end), outer);
    const std::string body = heading + "\r\nbegin\r\n\r\nend;\r\n\r\n";
    if (!tokens.FirstOnLine(keyword)) return {keyword, keyword, "\r\n\r\n" + body};
    const std::size_t place = tokens.LineStart(keyword);
    std::size_t above = place;
    while (above > 0 && (tokens.Text()[above - 1] == '\r' || tokens.Text()[above - 1] == '\n'))
        --above;
    const bool blankAbove = std::count(tokens.Text().begin() + static_cast<std::ptrdiff_t>(above),
                                       tokens.Text().begin() + static_cast<std::ptrdiff_t>(place), '\n') > 1;
    return {place, place, (blankAbove ? "" : "\r\n") + body};
}

} // namespace

std::string ClassParent(std::string_view text, std::string_view className) {
    const UnitStructure unit(text);
    const Class* type = unit.FindClass(className);
    return type ? type->parent : std::string();
}

TextEdits AddField(std::string_view text, std::string_view className, std::string_view name,
                   std::string_view type) {
    const UnitStructure unit(text);
    const Class& owner = ClassOf(unit, className);
    if (!unit.FindDeclared(owner, name, false).empty()) return {};
    const std::vector<Member> members = unit.Members(owner);
    return Declare(unit.Tokens(), owner, members, LastField(unit.Tokens(), owner, members),
                   std::string(name) + ": " + std::string(type) + ";");
}

TextEdits RemoveOrRenameField(std::string_view text, std::string_view className, std::string_view name,
                              std::string_view newName) {
    const UnitStructure unit(text);
    const UnitTokens& tokens = unit.Tokens();
    for (const Member& member : unit.Members(ClassOf(unit, className))) {
        if (member.kind != MemberKind::Field) continue;
        for (std::size_t i = member.name; i < member.last && tokens.IsWord(i); i += 2) {
            const bool more = tokens.IsSymbol(i + 1, ",");
            if (SameText(tokens[i], name)) {
                if (!newName.empty()) return {{tokens.Begin(i), tokens.End(i), std::string(newName)}};
                if (more) return {{tokens.Begin(i), tokens.Begin(i + 2), ""}};
                if (i > member.name) return {{tokens.Begin(i - 1), tokens.End(i), ""}};
                return {tokens.Without(tokens.Begin(member.first), tokens.End(member.last))};
            }
            if (!more) break;
        }
    }
    return {};
}

TextEdits AddMethod(std::string_view text, std::string_view className, std::string_view name,
                    std::string_view parameters) {
    const UnitStructure unit(text);
    const Class& owner = ClassOf(unit, className);
    if (!unit.FindDeclared(owner, name, true).empty()) return {};
    const std::vector<Member> members = unit.Members(owner);
    const Member* last = nullptr;
    for (const Member& member : members)
        if (member.initial) last = &member;
    const std::string rest =
        std::string(name) + (parameters.empty() ? "" : "(" + std::string(parameters) + ")") + ";";
    TextEdits edits = Declare(unit.Tokens(), owner, members, last, "procedure " + rest);
    const std::string declaredName(unit.Tokens()[owner.name]);
    if (!unit.FindRoutine(declaredName, name))
        edits.push_back(AddBody(unit, "procedure " + declaredName + "." + rest));
    return edits;
}

std::string FindMethod(std::string_view text, std::string_view className, std::string_view name) {
    const UnitStructure unit(text);
    const Class* type = unit.FindClass(className);
    return type ? std::string(unit.FindDeclared(*type, name, true)) : std::string();
}

} // namespace glotta::pascal
