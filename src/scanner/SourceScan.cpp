#include "scanner/SourceScan.h"

#include "ide/SourceTokens.h"
#include "runtime/CustomLang.h"
#include "scanner/CallPlaces.h"
#include "scanner/CommentPlaces.h"
#include "scanner/ConstDeclarations.h"
#include "scanner/ContinuedLiteral.h"
#include "scanner/LineWalk.h"
#include "scanner/LiteralReader.h"
#include "scanner/ReplacementText.h"
#include "scanner/StringIdentifiers.h"

namespace glotta {
namespace {

constexpr auto Nowhere = std::string_view::npos;

struct Line {
    std::size_t start;      // of the line
    std::size_t begin, end; // of what is scanned, without the line's end; a selection may begin inside a line
    int number;             // 0-based
};

// Characters that the source does not hold as such, but by codes beyond ASCII: at run time those are bytes of the
// system's code page.
bool HoldsForeignCode(const TgxFoundSourceString& row) {
    if (IsAscii(row.Value)) return false;
    for (std::size_t pos = FindNonAscii(row.Value); pos < row.Value.size();) {
        const std::size_t begin = pos;
        if (NextChar(row.Value, pos) > 127 &&
            row.SourceText.find(row.Value.substr(begin, pos - begin)) == std::string::npos)
            return true;
    }
    return false;
}

class Scan {
public:
    Scan(const ScanInput& input, const ScanRules& rules);
    ScanOutput Run();

private:
    std::size_t LineStart(std::size_t pos) const;
    void ScanLine(const Line& line);
    bool FindValidDelimitor(std::size_t from, const Line& line, std::size_t& delimiter);
    bool AllowsConstants(const Line& line);
    bool InConstSection(const Line& line);
    std::size_t TakeLiteral(std::size_t delimiter, std::size_t from, const Line& line);
    void TakeExpression(const LiteralStart& start, LiteralExpression expression, bool inComment,
                        const Line& line);
    bool IsLocalized(const LiteralStart& start) const;
    void AddFound(const LiteralStart& start, LiteralExpression expression, const Line& line);
    void SkipString(std::string_view text, std::size_t place, TStringSkipReason reason, const Line& line);
    std::string_view WhyNoCall(std::size_t begin, std::size_t end);
    bool InOpenBlockComment(std::size_t place);

    const ScanInput& input_;
    const ScanRules& rules_;
    const std::string_view text_;
    const SourceFlavour& flavour_;
    const LiteralReader reader_, commentReader_;
    CharPlaces places_;
    CommentPlaces comments_;
    StringIdentifiers ids_;
    ContinuedLiteral continued_;
    bool lineChecked_ = false;        // the rules for the whole line were asked
    std::size_t lineChars_ = Nowhere; // characters before the line; npos: not counted yet
    std::size_t lastOpen_ = Nowhere;  // the line's last literal that is a constant's
    std::size_t consumed_ = 0;        // a constant's expression may end in a later line
    std::size_t section_ = 0;         // the constant section at or behind the line
    bool joined_ = false;             // the last line's constant goes on in the next
    std::unique_ptr<CallPlaces> calls_;
    std::unique_ptr<ConstDeclarations> constants_;
    std::optional<std::vector<ByteRange>> openComments_; // without a comment test
    ScanOutput output_;
};

Scan::Scan(const ScanInput& input, const ScanRules& rules)
    : input_(input), rules_(rules), text_(input.text), flavour_(*input.flavour), reader_(text_, flavour_),
      commentReader_(text_, flavour_, LiteralReader::Place::Comment), places_(text_),
      comments_(text_, flavour_.IsCPPSource, rules.Helper(), places_),
      ids_(rules.Settings(), input.idsInUse) {}

ScanOutput Scan::Run() {
    if (input_.constMode) {
        if (flavour_.IsCPPSource) return {};
        calls_ = std::make_unique<CallPlaces>(text_, false);
        constants_ = std::make_unique<ConstDeclarations>(text_, calls_->ConstSections());
    }
    const std::size_t end = std::min(input_.end, text_.size());
    const std::size_t first = std::min(input_.begin, end);
    std::size_t pos = first;
    LineWalk walk(flavour_);
    walk.StartBelow(text_.substr(0, pos));
    int number = CountChar(text_.substr(0, pos), '\n');
    const char delimiter = flavour_.STRDELIM[0];
    std::size_t nextDelimiter = text_.find(delimiter, pos);
    std::size_t nextMarker = FindMarkerStart(text_, pos, flavour_);
    for (; pos < end; ++number) {
        if (walk.Idle() && !constants_ && !continued_.Open()) {
            // Lines that hold neither a delimiter nor a marker change nothing.
            if (nextDelimiter < pos) nextDelimiter = text_.find(delimiter, pos);
            if (nextMarker < pos) nextMarker = FindMarkerStart(text_, pos, flavour_);
            const std::size_t next = std::min(nextDelimiter, nextMarker);
            if (next >= end) break;
            const std::size_t start = LineStart(next);
            if (start > pos) {
                number += CountChar(text_.substr(pos, start - pos), '\n');
                pos = start;
            }
        }
        const std::size_t feed = std::min(text_.find('\n', pos), end);
        Line line{pos == first ? LineStart(first) : pos, pos, feed, number};
        while (line.end > line.begin && text_[line.end - 1] == '\r')
            --line.end;
        if (nextDelimiter < pos) nextDelimiter = text_.find(delimiter, pos);
        if (walk.Enter(text_.substr(line.begin, line.end - line.begin))) {
            if (nextDelimiter < line.end || continued_.Open() || constants_) ScanLine(line);
            walk.Leave();
        } else {
            continued_.Skip(text_, line.begin, line.end);
        }
        pos = feed + 1;
    }
    return std::move(output_);
}

std::size_t Scan::LineStart(std::size_t pos) const {
    return pos == 0 ? 0 : text_.rfind('\n', pos - 1) + 1;
}

void Scan::ScanLine(const Line& line) {
    if (constants_ && !AllowsConstants(line)) return;
    lineChecked_ = false;
    lineChars_ = lastOpen_ = Nowhere;
    std::size_t from = continued_.Skip(text_, std::max(line.begin, consumed_), line.end);
    std::size_t delimiter = 0;
    while (from < line.end && FindValidDelimitor(from, line, delimiter))
        from = TakeLiteral(delimiter, from, line);
    if (lastOpen_ == Nowhere) return;
    const std::size_t end = from <= line.end ? line.end : std::min(text_.find("\r\n", from), text_.size());
    joined_ = !IsStringTerminated(text_.substr(lastOpen_, end - lastOpen_), flavour_);
}

// Whether the line's literals can be constants: it holds a "=", or goes on with a declaration that does.
bool Scan::AllowsConstants(const Line& line) {
    if (!InConstSection(line)) return false;
    const std::string_view text = text_.substr(line.begin, line.end - line.begin);
    if (TrimRight(text).ends_with(LocalizedComment)) return false;
    const auto* declaration = constants_->At(line.begin);
    const bool goesOn = declaration && (joined_ || declaration->aggregate);
    joined_ = joined_ && declaration;
    return goesOn || text.find('=') != Nowhere;
}

bool Scan::InConstSection(const Line& line) {
    const auto& sections = calls_->ConstSections();
    while (section_ < sections.size() && sections[section_].end <= line.begin)
        ++section_;
    return section_ < sections.size() && sections[section_].begin < line.end;
}

bool Scan::FindValidDelimitor(std::size_t from, const Line& line, std::size_t& delimiter) {
    delimiter = reader_.FindDelimiter(from, line.end);
    if (delimiter == Nowhere) return false;
    const std::string_view before = text_.substr(from, delimiter - from);
    if (before.find("//") != Nowhere) return false;
    const std::string_view rest = text_.substr(from, line.end - from);
    // What the line does not hold its rest does not either.
    const bool first = !std::exchange(lineChecked_, true);
    if ((first && ContainsMarker(rest, flavour_.IGNORELINE)) ||
        before.find(flavour_.STARTIGNORE) != Nowhere) {
        SkipString(rest, from, ssByIgnoreTag, line);
        return false;
    }
    if (first && rules_.SkipsLine(rest)) {
        SkipString(rest, from, ssrByLine, line);
        return false;
    }
    return true;
}

// Returns where the search goes on.
std::size_t Scan::TakeLiteral(std::size_t delimiter, std::size_t from, const Line& line) {
    const bool inComment = comments_.At(delimiter);
    const LiteralReader& reader = inComment ? commentReader_ : reader_;
    LiteralStart start = reader.Quoted(delimiter, line.end);
    if (inComment && (start.close == Nowhere || !comments_.InOne(start.open, start.close)))
        return start.open + 1;
    if (start.close == Nowhere) {
        continued_.Begin(text_, start, line.end);
        return line.end;
    }
    const auto* constant = constants_ ? constants_->At(start.open) : nullptr;
    if (constants_ && !inComment && !constant) return start.close;
    const std::string_view content = text_.substr(start.contentBegin, start.contentEnd - start.contentBegin);
    if (static_cast<long long>(CharCount(content)) <= rules_.Settings().IgnorableLength) return start.close;

    reader.JoinBefore(start, from, line.end);
    const std::size_t limit = constant ? std::min(constant->end + 1, text_.size()) : line.end;
    LiteralExpression expression = reader.Decode(start.begin, limit);
    const std::size_t end = std::max(expression.end, start.close);
    if (constant) {
        lastOpen_ = start.open;
        consumed_ = end;
    }
    if (!IsLocalized(start)) TakeExpression(start, std::move(expression), inComment, line);
    return end;
}

void Scan::TakeExpression(const LiteralStart& start, LiteralExpression expression, bool inComment,
                          const Line& line) {
    const TStringSkipReason reason = rules_.IsExcludeString(expression.value, inComment);
    if (reason == ssrNone)
        AddFound(start, std::move(expression), line);
    else
        SkipString(expression.value, start.begin, reason, line);
}

// The literal is the identifier of a look-up call already.
bool Scan::IsLocalized(const LiteralStart& start) const {
    if (start.open == 0 || text_[start.open - 1] != '(') return false;
    return std::any_of(TextGetterNames.begin(), TextGetterNames.end(), [&](std::string_view method) {
        return start.open >= method.size() &&
               SameText(text_.substr(start.open - method.size(), method.size()), method);
    });
}

void Scan::AddFound(const LiteralStart& start, LiteralExpression expression, const Line& line) {
    TgxFoundSourceString& found = output_.found.AddItem();
    found.Begin = start.begin;
    found.End = expression.end;
    found.TailEnd = expression.tailEnd;
    found.FollowedBy = expression.tail;
    found.InBlockComment = InOpenBlockComment(start.begin);
    found.SourceText = text_.substr(found.Begin, found.End - found.Begin);
    found.Value = std::move(expression.value);
    found.Position = places_.Before(found.Begin) + 1;
    found.Line = line.number;
    if (lineChars_ == Nowhere) lineChars_ = places_.Before(line.start);
    found.Column = static_cast<int>(found.Position - 1 - lineChars_);
    found.Note = WhyNoCall(found.Begin, found.End);
    if (found.Note.empty() && HoldsForeignCode(found))
        found.Note = "a character code above 127 depends on the code page";
    if (constants_) {
        found.Constant = constants_->At(start.open)->name;
        found.ID = ids_.ForConstant(found.Constant);
    } else {
        found.ID = ids_.ForCode();
    }
    RebuildReplacement(found, input_.component, flavour_, rules_.Settings());
    if (input_.onFound) input_.onFound(output_.found.Count());
}

void Scan::SkipString(std::string_view text, std::size_t place, TStringSkipReason reason, const Line& line) {
    const std::size_t position = places_.Before(place) + 1;
    output_.skipped.push_back({.Text = std::string(text),
                               .SourcePos = input_.constMode ? 0 : position,
                               .ConstPos = input_.constMode ? position : 0,
                               .Reason = reason,
                               .Line = line.number});
}

std::string_view Scan::WhyNoCall(std::size_t begin, std::size_t end) {
    if (constants_) return constants_->IsWholeTokens(begin, end) ? "" : "cuts a token";
    if (!calls_) calls_ = std::make_unique<CallPlaces>(text_, flavour_.IsCPPSource);
    return calls_->WhyNot(begin, end);
}

bool Scan::InOpenBlockComment(std::size_t place) {
    if (rules_.Helper().HasCommentTest()) return false; // such a place is skipped
    if (!openComments_) {
        openComments_ = FindComments(text_, flavour_.IsCPPSource);
        std::erase_if(*openComments_, [&](const ByteRange& comment) {
            return !text_.substr(comment.begin).starts_with(flavour_.COMMENTSTART);
        });
    }
    const auto next =
        std::upper_bound(openComments_->begin(), openComments_->end(), place,
                         [](std::size_t at, const ByteRange& comment) { return at < comment.begin; });
    return next != openComments_->begin() && place < std::prev(next)->end;
}

} // namespace

ScanOutput ScanSource(const ScanInput& input, const ScanRules& rules) {
    return Scan(input, rules).Run();
}

} // namespace glotta
