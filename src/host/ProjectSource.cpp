#include "host/ProjectListing.h"
#include "ide/SourceTokens.h"
#include "platform/Text.h"

namespace glotta {
namespace {

// Walks the tokens of a project source.
class Reader {
public:
    Reader(std::string_view text, bool isCpp)
        : text_(text), tokens_(Tokenize(text, isCpp, KeepComments::Yes)) {}

    bool AtEnd() const { return next_ >= tokens_.size(); }
    TokenKind Kind() const { return AtEnd() ? TokenKind::Bad : tokens_[next_].kind; }
    std::string_view Text() const {
        return AtEnd() ? std::string_view{} : text_.substr(Begin(), tokens_[next_].end - Begin());
    }
    std::string_view All() const { return text_; }
    void Next() { ++next_; }
    void SkipRemarks() {
        while (Kind() == TokenKind::Comment || Kind() == TokenKind::Directive)
            Next();
    }
    bool Take(std::string_view word) {
        SkipRemarks();
        if (!SameText(Text(), word)) return false;
        Next();
        return true;
    }

private:
    std::uint32_t Begin() const { return tokens_[next_].begin; }
    std::string_view text_;
    std::vector<Token> tokens_;
    std::size_t next_ = 0;
};

std::string Unquoted(std::string_view literal, char quote) {
    if (literal.size() >= 2 && literal.front() == quote && literal.back() == quote)
        literal = literal.substr(1, literal.size() - 2);
    return std::string(literal);
}

std::string_view CommentContent(std::string_view comment) {
    if (comment.starts_with("//")) return Trim(comment.substr(2));
    const std::size_t mark = comment.starts_with("{") ? 1 : 2;
    if (comment.size() < 2 * mark) return {};
    return Trim(comment.substr(mark, comment.size() - 2 * mark));
}

// {Form1} or {DataModule1: TDataModule}; any other comment is none of the project's.
void Annotate(ListedUnit& unit, std::string_view text, std::string_view comment) {
    const std::string_view content = CommentContent(comment);
    const std::size_t colon = content.find(':');
    const std::string_view name = TrimRight(content.substr(0, colon));
    const bool typed = colon != std::string_view::npos;
    const std::string_view type = typed ? Trim(content.substr(colon + 1)) : std::string_view{};
    if (!IsIdentifier(name) || (typed && !IsIdentifier(type))) return;
    unit.formName = name;
    unit.designClass = type;
    unit.formBegin = static_cast<std::size_t>(name.data() - text.data());
    unit.formEnd = unit.formBegin + name.size();
}

std::string DottedName(Reader& reader) {
    std::string name;
    for (reader.SkipRemarks(); reader.Kind() == TokenKind::Identifier || reader.Text() == ".";
         reader.Next()) {
        if (SameText(reader.Text(), "in")) break;
        name += reader.Text();
    }
    return name;
}

// Units without a path are the libraries' own and belong to no project.
void ReadUsesClause(Reader& reader, std::vector<ListedUnit>& units) {
    while (!reader.AtEnd() && !reader.Take(";")) {
        ListedUnit unit{DottedName(reader), {}, {}, {}};
        if (reader.Take("in")) {
            reader.SkipRemarks();
            if (reader.Kind() == TokenKind::String) {
                unit.path = Unquoted(reader.Text(), '\'');
                reader.Next();
            }
        }
        for (; reader.Kind() == TokenKind::Comment || reader.Kind() == TokenKind::Directive; reader.Next())
            if (reader.Kind() == TokenKind::Comment && unit.formName.empty()) Annotate(unit, reader.All(), reader.Text());
        if (!unit.path.empty()) units.push_back(std::move(unit));
        if (!reader.AtEnd() && reader.Text() != ";") reader.Next();
    }
}

struct UseMacro {
    std::string_view name;
    std::size_t formArgument; // 0: none
    std::string_view designClass;
};
constexpr UseMacro useMacros[] = {{"USEUNIT", 0, ""},
                                  {"USEFORM", 1, ""},
                                  {"USEFORMNS", 2, ""},
                                  {"USEDATAMODULE", 1, "TDataModule"},
                                  {"USEDATAMODULENS", 2, "TDataModule"}};

const UseMacro* FindUseMacro(std::string_view name) {
    for (const UseMacro& macro : useMacros)
        if (macro.name == name) return &macro;
    return nullptr;
}

// USEFORM("dir\Unit.cpp", Form1); /* TDataModule: File Type */
std::optional<ListedUnit> ReadUseMacro(Reader& reader, const UseMacro& macro) {
    std::vector<std::string_view> arguments;
    if (!reader.Take("(")) return {};
    for (; !reader.AtEnd() && reader.Text() != ")" && reader.Text() != ";"; reader.Next())
        if (reader.Kind() == TokenKind::String || reader.Kind() == TokenKind::Identifier)
            arguments.push_back(reader.Text());
    reader.Next();
    if (reader.Text() == ";") reader.Next();
    if (arguments.empty()) return {};
    const std::string path = Unquoted(arguments[0], '"');
    ListedUnit unit{WrittenStem(path), path, {}, std::string(macro.designClass)};
    if (macro.formArgument > 0 && macro.formArgument < arguments.size()) {
        const std::string_view form = arguments[macro.formArgument];
        unit.formName = Unquoted(form, '"');
        unit.formBegin = static_cast<std::size_t>(form.data() - reader.All().data());
        unit.formEnd = unit.formBegin + form.size();
    }
    if (reader.Kind() == TokenKind::Comment) {
        const std::string_view content = CommentContent(reader.Text());
        const std::string_view type = TrimRight(content.substr(0, content.find(':')));
        if (content.size() > type.size() && IsIdentifier(type)) unit.designClass = type;
    }
    return unit;
}

} // namespace

ProjectListing ListDelphiSource(std::string_view text) {
    ProjectListing result;
    Reader reader(text, false);
    if (reader.Take("library"))
        result.kind = ProjectKind::DelphiLibrary;
    else if (reader.Take("package"))
        result.kind = ProjectKind::DelphiPackage;
    while (!reader.AtEnd()) {
        const bool clause = reader.Kind() == TokenKind::Identifier &&
                            (SameText(reader.Text(), "uses") || (result.kind == ProjectKind::DelphiPackage &&
                                                                 SameText(reader.Text(), "contains")));
        reader.Next();
        if (clause) ReadUsesClause(reader, result.units);
    }
    return result;
}

ProjectListing ListUseMacros(std::string_view text) {
    ProjectListing result{ProjectKind::CppBuilder, {}, {}, {}};
    Reader reader(text, true);
    while (!reader.AtEnd()) {
        const UseMacro* macro =
            reader.Kind() == TokenKind::Identifier ? FindUseMacro(reader.Text()) : nullptr;
        reader.Next();
        if (!macro) continue;
        if (auto unit = ReadUseMacro(reader, *macro)) result.units.push_back(std::move(*unit));
    }
    return result;
}

void AddListedRename(TextEdits& edits, std::string_view text, bool isCpp, std::string_view unit,
                     const std::string& name, const std::string& newName) {
    for (const ListedUnit& listed : (isCpp ? ListUseMacros(text) : ListDelphiSource(text)).units) {
        if (listed.formEnd == 0 || !SameText(listed.formName, name) || !SameText(WrittenStem(listed.path), unit)) continue;
        const bool known = std::any_of(edits.begin(), edits.end(),
                                       [&](const TextEdit& edit) { return edit.begin == listed.formBegin; });
        if (!known) edits.push_back({listed.formBegin, listed.formEnd, newName});
    }
}

} // namespace glotta
