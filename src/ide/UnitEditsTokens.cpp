#include "ide/UnitEditsTokens.h"

#include "platform/Text.h"

#include <algorithm>
#include <unordered_map>

namespace glotta {

namespace {

enum class Condition { No, If, Else, End };

struct ConditionalDirective {
    Condition kind = Condition::No;
    std::string symbol;   // what an If tests, upper-cased
    bool negated = false; // {$IFNDEF
    bool conditionalElse = false;
};

// The directive's word and the rest behind it: "{$IFDEF X}" gives "IFDEF" and "X".
ConditionalDirective Analyze(std::string_view text, bool isCpp) {
    text.remove_prefix(std::min<std::size_t>(text.size(), isCpp ? 1 : text.starts_with("(*") ? 3 : 2));
    if (!isCpp) text = text.substr(0, text.find_first_of("}*"));
    text = Trim(text);
    std::size_t length = 0;
    while (length < text.size() && static_cast<unsigned char>(text[length] | 0x20) >= 'a' &&
           static_cast<unsigned char>(text[length] | 0x20) <= 'z')
        ++length;
    if (length < 2 || length > 7) return {};
    const std::string word = UpperCase(text.substr(0, length));
    struct Row {
        std::string_view word;
        Condition kind;
        bool negated, conditionalElse;
    };
    static constexpr Row Rows[] = {
        {"IF", Condition::If, false, false},     {"IFDEF", Condition::If, false, false},
        {"IFNDEF", Condition::If, true, false},  {"IFOPT", Condition::If, false, false},
        {"ELSE", Condition::Else, false, false}, {"ELSEIF", Condition::Else, false, true},
        {"ELIF", Condition::Else, false, true},  {"ENDIF", Condition::End, false, false},
        {"IFEND", Condition::End, false, false},
    };
    for (const Row& row : Rows) {
        if (row.word != word) continue;
        ConditionalDirective result{row.kind, {}, row.negated, row.conditionalElse};
        std::string_view symbol = Trim(text.substr(length));
        if (word == "IFDEF" || word == "IFNDEF") symbol = symbol.substr(0, symbol.find_first_of(" \t\r\n/"));
        result.symbol = UpperCase(symbol);
        return result;
    }
    return {};
}

// Chooses one branch of each condition: the first that holds code, and the same way for every condition on
// one symbol.
class Branches {
public:
    bool Taking() const { return open_.empty() || open_.back().taking; }

    void Code() {
        for (auto frame = open_.rbegin(); frame != open_.rend() && !frame->code; ++frame) {
            frame->code = true;
            if (!frame->symbol.empty()) chosen_.emplace(frame->symbol, frame->first != frame->negated);
        }
    }

    void Meet(const ConditionalDirective& directive) {
        if (directive.kind == Condition::If) {
            Frame frame;
            frame.outer = Taking();
            frame.symbol = directive.symbol;
            frame.negated = directive.negated;
            const auto known = chosen_.find(frame.symbol);
            frame.wanted = known != chosen_.end() ? (known->second != frame.negated ? 1 : 0) : -1;
            if (frame.symbol == "0" || frame.symbol == "FALSE") frame.wanted = 0;
            frame.taking = frame.outer && frame.wanted != 0;
            open_.push_back(std::move(frame));
        } else if (directive.kind == Condition::Else && !open_.empty()) {
            Frame& frame = open_.back();
            frame.first = false;
            frame.taking = frame.outer && !frame.code && (frame.wanted != 1 || directive.conditionalElse);
        } else if (directive.kind == Condition::End && !open_.empty()) {
            open_.pop_back();
        }
    }

    unsigned Depth() const { return static_cast<unsigned>(open_.size()); }

private:
    struct Frame {
        std::string symbol;
        bool outer = true, taking = true, negated = false, first = true, code = false;
        int wanted = -1; // 1: the first branch, 0: another, -1: the first with code
    };
    std::vector<Frame> open_;
    std::unordered_map<std::string, bool> chosen_;
};

bool IsBlank(char c) {
    return c == ' ' || c == '\t';
}
bool IsLineEnd(char c) {
    return c == '\r' || c == '\n';
}

} // namespace

UnitTokens::UnitTokens(std::string_view text, bool isCpp) : text_(text), isCpp_(isCpp) {
    Sort(Tokenize(text, isCpp, KeepComments::Yes));
}

void UnitTokens::Sort(const std::vector<Token>& all) {
    tokens_.reserve(all.size());
    Branches branches;
    for (const Token& token : all) {
        if (token.kind == TokenKind::Comment) {
            comments_.push_back(token);
        } else if (token.kind == TokenKind::Directive) {
            branches.Meet(Analyze(text_.substr(token.begin, token.end - token.begin), isCpp_));
            directives_.push_back(token);
            depthBehind_.push_back(branches.Depth());
        } else if (branches.Taking()) {
            branches.Code();
            tokens_.push_back(token);
        } else {
            alternatives_.push_back(token);
        }
    }
}

std::string_view UnitTokens::operator[](std::size_t index) const {
    if (index >= tokens_.size()) return {};
    return text_.substr(tokens_[index].begin, tokens_[index].end - tokens_[index].begin);
}

bool UnitTokens::IsWord(std::size_t index) const {
    return index < tokens_.size() && tokens_[index].kind == TokenKind::Identifier;
}

bool UnitTokens::Is(std::size_t index, std::string_view word) const {
    if (!IsWord(index) || tokens_[index].end - tokens_[index].begin != word.size()) return false;
    return isCpp_ ? (*this)[index] == word : SameText((*this)[index], word);
}

std::size_t UnitTokens::IndexAt(std::size_t place) const {
    return static_cast<std::size_t>(
        std::lower_bound(tokens_.begin(), tokens_.end(), place,
                         [](const Token& token, std::size_t at) { return token.begin < at; }) -
        tokens_.begin());
}

std::size_t UnitTokens::Closing(std::size_t open, std::size_t end) const {
    unsigned depth = 0;
    for (std::size_t i = open; i < end; ++i) {
        const std::string_view token = (*this)[i];
        if (token == "(" || token == "[" || token == "{")
            ++depth;
        else if ((token == ")" || token == "]" || token == "}") && --depth == 0)
            return i;
    }
    return end;
}

unsigned UnitTokens::Depth(std::size_t place) const {
    const auto behind = std::upper_bound(directives_.begin(), directives_.end(), place,
                                         [](std::size_t at, const Token& token) { return at < token.end; });
    return behind == directives_.begin()
               ? 0
               : depthBehind_[static_cast<std::size_t>(behind - directives_.begin()) - 1];
}

std::size_t UnitTokens::LeaveConditionals(std::size_t place, unsigned depth) const {
    if (Depth(place) <= depth) return place;
    for (std::size_t i = 0; i < directives_.size(); ++i)
        if (directives_[i].end > place && depthBehind_[i] <= depth) return directives_[i].end;
    return place;
}

std::size_t UnitTokens::BeforeConditionals(std::size_t place, unsigned depth) const {
    if (Depth(place) <= depth) return place;
    std::size_t result = place;
    for (std::size_t i = 0; i < directives_.size() && directives_[i].end <= place; ++i)
        if (depthBehind_[i] > depth && (i == 0 || depthBehind_[i - 1] <= depth))
            result = directives_[i].begin;
    return result;
}

std::size_t UnitTokens::RestOfLine(std::size_t place) const {
    auto comment = std::lower_bound(comments_.begin(), comments_.end(), place,
                                    [](const Token& token, std::size_t at) { return token.begin < at; });
    for (std::size_t at = place; at < text_.size(); ++at) {
        if (IsLineEnd(text_[at])) return at;
        if (IsBlank(text_[at])) continue;
        while (comment != comments_.end() && comment->begin < at)
            ++comment;
        if (comment == comments_.end() || comment->begin != at) return place;
        std::size_t end = comment->end;
        while (end > at && IsLineEnd(text_[end - 1]))
            --end;
        if (text_.substr(at, end - at).find('\n') != std::string_view::npos) return place;
        at = end - 1;
    }
    return text_.size();
}

std::size_t UnitTokens::LineStart(std::size_t place) const {
    while (place > 0 && !IsLineEnd(text_[place - 1]))
        --place;
    return place;
}

bool UnitTokens::FirstOnLine(std::size_t place) const {
    while (place > 0 && IsBlank(text_[place - 1]))
        --place;
    return place == 0 || IsLineEnd(text_[place - 1]);
}

std::string UnitTokens::Indent(std::size_t place) const {
    const std::size_t start = LineStart(place);
    std::size_t end = start;
    while (end < text_.size() && IsBlank(text_[end]))
        ++end;
    return std::string(text_.substr(start, end - start));
}

TextEdit UnitTokens::LineBehind(std::size_t place, const std::string& line) const {
    const std::size_t end = RestOfLine(place);
    if (end == text_.size() || IsLineEnd(text_[end])) return {end, end, "\r\n" + line};
    std::size_t rest = place;
    while (rest < text_.size() && IsBlank(text_[rest]))
        ++rest;
    return {place, rest, "\r\n" + line + "\r\n" + Indent(place)};
}

TextEdit UnitTokens::Without(std::size_t begin, std::size_t end) const {
    const std::size_t rest = RestOfLine(end);
    const bool alone = FirstOnLine(begin) &&
                       text_.substr(end, rest - end).find_first_not_of(" \t") == std::string_view::npos;
    if (!alone || rest == text_.size()) return {begin, end, ""};
    return {LineStart(begin), rest + (text_[rest] == '\r' ? 2 : 1), ""};
}

} // namespace glotta
