#include "storage/IdentifierCheck.h"

#include "platform/LineSpans.h"
#include "platform/Text.h"
#include "runtime/CustomLang.h"

#include <algorithm>
#include <optional>
#include <unordered_set>

namespace glotta {

namespace {

// A call up to its opening quote; all places are bytes of the text.
struct Call {
    std::size_t lineBegin, lineEnd;
    std::size_t name;     // where its name begins
    std::size_t argument; // behind the quote
    int line;             // from 1
};

// Where the call's name begins that ends with the parenthesis at `paren`; npos when it is another name. A
// longer name that ends like a call's counts, too.
std::size_t NameBefore(std::string_view line, std::size_t paren) {
    for (const std::string_view name : TextGetterNames) {
        const std::size_t size = name.size() - 1;
        if (paren >= size && SameText(line.substr(paren - size, size), name.substr(0, size)))
            return paren - size;
    }
    return std::string_view::npos;
}

std::vector<Call> FindCalls(std::string_view source, char quote) {
    std::vector<Call> calls;
    int number = 1;
    for (std::size_t begin = 0; begin < source.size(); ++number) {
        const auto [end, next] = LineAt(source, begin);
        const std::string_view line = source.substr(begin, end - begin);
        for (std::size_t at = line.find('('); at != std::string_view::npos; at = line.find('(', at + 1)) {
            if (at + 1 >= line.size() || line[at + 1] != quote) continue;
            if (const std::size_t name = NameBefore(line, at); name != std::string_view::npos)
                calls.push_back({begin, end, begin + name, begin + at + 2, number});
        }
        begin = next;
    }
    return calls;
}

bool IsIdentifierChar(char c) {
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || c == '_' || (c >= 'a' && c <= 'z');
}

// The identifier that `text` ends with.
std::string_view LastIdentifier(std::string_view text) {
    std::size_t begin = text.size();
    while (begin > 0 && IsIdentifierChar(text[begin - 1]))
        --begin;
    return text.substr(begin);
}

// What stands before a call's name: Form2.glotta1.
struct Qualifiers {
    bool hasForm = false;
    std::string form, component;
};

// `before` is the line up to the call's name.
Qualifiers ReadQualifiers(std::string_view before, std::string_view methodPoint) {
    const auto cut = [&](std::size_t count) { before.remove_suffix(std::min(count, before.size())); };
    constexpr std::string_view PointChars = "-.>";
    const std::size_t name = before.find_last_not_of(PointChars) + 1;
    Qualifiers result;
    if (before.substr(name) != methodPoint) return result;
    cut(methodPoint.size());
    result.component = LastIdentifier(before);
    cut(result.component.size());
    result.hasForm = !before.empty() && PointChars.find(before.back()) != std::string_view::npos;
    if (result.hasForm) {
        cut(methodPoint.size());
        result.form = LastIdentifier(before);
    }
    return result;
}

class Check {
public:
    Check(std::string_view source, const SourceFlavour& flavour, const std::string& formName,
          const FindFormIDs& findForm)
        : source_(source), flavour_(flavour), findForm_(findForm),
          form_(formName.empty() ? nullptr : findForm(formName)),
          calls_(FindCalls(source, flavour.STRDELIM.front())) {}

    std::vector<BadID> Run() {
        if (form_) FindUnused();
        CheckCalls();
        return std::move(rows_);
    }

private:
    bool IsOwnForm(const std::string& name) const {
        return SameText(name, "Self") || (flavour_.IsCPPSource && name == "this");
    }

    // The text up to the closing quote; nothing when the line has none.
    std::optional<std::string_view> Argument(const Call& call) const {
        const std::string_view rest = source_.substr(call.argument, call.lineEnd - call.argument);
        const std::size_t close = rest.find(flavour_.STRDELIM);
        if (close == std::string_view::npos) return {};
        return rest.substr(0, close);
    }

    void FindUnused() {
        std::unordered_set<std::string_view, TextHash, TextEqual> used;
        for (const Call& call : calls_)
            if (const auto id = Argument(call)) used.insert(*id);
        for (const ComponentIDs& component : form_->components)
            for (std::size_t i = 0; i < component.ids.Count(); ++i)
                if (!used.contains(component.ids[i]))
                    rows_.push_back(
                        {component.ids[i], BadID::Problem::NotUsed, int(i), form_->formName, component.name});
    }

    // An empty argument ends the work on its line.
    void CheckCalls() {
        int endedLine = 0;
        for (const Call& call : calls_) {
            if (call.line == endedLine) continue;
            const std::optional<std::string_view> id = Argument(call);
            if (id && !id->empty())
                CheckCall(call, *id);
            else
                endedLine = call.line;
        }
    }

    void CheckCall(const Call& call, std::string_view id) {
        const Qualifiers named =
            ReadQualifiers(source_.substr(call.lineBegin, call.name - call.lineBegin), flavour_.METHODPOINT);
        const bool isOther = named.hasForm && !IsOwnForm(named.form);
        const FormIDs* const form = isOther ? findForm_(named.form) : form_;
        const ComponentIDs* const component = form ? form->Addressed(named.component) : nullptr;
        if (component && component->ids.IndexOf(id) >= 0) return;
        const std::size_t behind = call.argument + id.size() + flavour_.STRDELIM.size();
        BadID row{std::string(id), BadID::Problem::NotCheckable, call.line, {}, {}};
        if (component) {
            row.formName = form->formName;
            row.componentName = component->name;
            if (IsWholeArgument(behind, call.lineEnd)) row.problem = BadID::Problem::NotFound;
        }
        rows_.push_back(std::move(row));
    }

    // Whether the parenthesis closes behind the literal. A comment in between goes with one character more.
    bool IsWholeArgument(std::size_t at, std::size_t lineEnd) {
        const auto rest = [&] { return source_.substr(at, lineEnd - at); };
        at = lineEnd - TrimLeft(rest()).size();
        if (rest().starts_with(flavour_.COMMENTSTART)) {
            const std::size_t end = CommentEnd(at);
            if (end >= lineEnd) return false;
            at = std::min(end + flavour_.COMMENTEND.size(), lineEnd);
            if (at < lineEnd) NextChar(source_, at);
        }
        return rest().starts_with(')');
    }

    // Of the first comment that ends behind `from`. Calls come in order, so the text is walked once.
    std::size_t CommentEnd(std::size_t from) {
        if (commentEnd_ < from)
            commentEnd_ = std::min(source_.find(flavour_.COMMENTEND, from), source_.size());
        return commentEnd_;
    }

    std::string_view source_;
    const SourceFlavour& flavour_;
    const FindFormIDs& findForm_;
    const FormIDs* form_;
    std::vector<Call> calls_;
    std::vector<BadID> rows_;
    std::size_t commentEnd_ = 0;
};

} // namespace

const ComponentIDs* FormIDs::Addressed(std::string_view name) const {
    for (const ComponentIDs& component : components)
        if (SameText(component.name, name)) return &component;
    return components.empty() ? nullptr : &components.front();
}

std::string BadID::Type() const {
    switch (problem) {
    case Problem::NotUsed:
        return "Not used in source of current module.";
    case Problem::NotFound:
        return "Not found in " + formName + "." + componentName;
    case Problem::NotCheckable:
        return "Can't be autochecked.";
    }
    return {};
}

std::string BadID::Info() const {
    return (problem == Problem::NotUsed ? "Index: " : "Line: ") + std::to_string(place);
}

std::vector<BadID> CheckIDs(std::string_view source, const SourceFlavour& flavour,
                            const std::string& formName, const FindFormIDs& findForm) {
    return Check(source, flavour, formName, findForm).Run();
}

} // namespace glotta
