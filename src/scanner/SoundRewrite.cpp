#include "scanner/SoundRewrite.h"

#include "ide/SourceTokens.h"
#include "scanner/TextMacro.h"

#include <algorithm>

namespace glotta {

namespace {

struct Checked {
    const TextEdit* edit;
    bool isRow;
    std::string* reason;
    bool inComment = false;
    std::vector<Token> tokens; // of the replacement alone
};

bool IsTail(std::string_view symbol) {
    return symbol == "+" || symbol == ";";
}

class Proof {
public:
    Proof(std::string_view original, bool isCpp)
        : original_(original), isCpp_(isCpp), tokens_(Tokenize(original, isCpp, KeepComments::Yes)) {}

    void Check(std::vector<Checked>& edits) {
        std::size_t end = 0;
        auto token = tokens_.cbegin();
        for (Checked& checked : edits) {
            const TextEdit& edit = *checked.edit;
            while (token != tokens_.cend() && token->end <= edit.begin)
                ++token;
            if (edit.begin > edit.end || edit.end > original_.size())
                *checked.reason = "lies outside the text";
            else if (edit.begin < end)
                *checked.reason = "overlaps another change";
            else
                *checked.reason = CheckAlone(checked, token);
            if (checked.reason->empty()) end = edit.end;
        }
        std::erase_if(edits, [](const Checked& checked) { return !checked.reason->empty(); });
        CheckTogether(edits);
    }

private:
    using Iterator = std::vector<Token>::const_iterator;

    static std::string_view TextOf(std::string_view text, const Token& token) {
        return text.substr(token.begin, token.end - token.begin);
    }

    // `token` is the first that ends behind the edit's begin.
    std::string CheckAlone(Checked& checked, Iterator token) const {
        const TextEdit& edit = *checked.edit;
        const bool within = token != tokens_.cend() && token->begin < edit.begin;
        checked.inComment = token != tokens_.cend() && token->kind == TokenKind::Comment &&
                            (within || token->begin == edit.begin) && edit.begin < edit.end &&
                            edit.end <= token->end;
        if (within && token->kind == TokenKind::Comment && edit.begin == edit.end) checked.inComment = true;
        if (checked.inComment) return within ? "" : "replaces a comment";
        if (within) return "cuts a token";
        std::string_view tail;
        if (std::string reason = CheckCovered(edit, checked.isRow, token, tail); !reason.empty())
            return reason;
        if (std::string reason = CheckReplacement(checked, tail); !reason.empty() || checked.tokens.empty())
            return reason;
        return CheckNeighbours(checked, token);
    }

    // "return" and a call must not become one word.
    std::string CheckNeighbours(const Checked& checked, Iterator token) const {
        const TextEdit& edit = *checked.edit;
        const Token &first = checked.tokens.front(), &last = checked.tokens.back();
        if (token != tokens_.cbegin() && (token - 1)->end == edit.begin && first.begin == 0 &&
            !StayApart(original_, *(token - 1), edit.text, first))
            return "joins what stands before it";
        while (token != tokens_.cend() && token->begin < edit.end)
            ++token;
        if (token != tokens_.cend() && token->begin == edit.end && last.end == edit.text.size() &&
            !StayApart(edit.text, last, original_, *token))
            return "joins what stands behind it";
        return {};
    }
    bool StayApart(std::string_view before, const Token& a, std::string_view behind, const Token& b) const {
        if (a.kind > TokenKind::Symbol || b.kind > TokenKind::Symbol) return true;
        const std::string both = std::string(TextOf(before, a)).append(TextOf(behind, b));
        const std::vector<Token> tokens = Tokenize(both, isCpp_);
        return !tokens.empty() && tokens[0].end == a.end - a.begin;
    }

    std::string CheckCovered(const TextEdit& edit, bool isRow, Iterator token, std::string_view& tail) const {
        bool literal = false;
        for (; token != tokens_.cend() && token->begin < edit.end; ++token) {
            if (token->end > edit.end) return "cuts a token";
            if (!isRow) continue;
            const std::string_view text = TextOf(original_, *token);
            if (!tail.empty() && tail != "+") return "covers more than a literal expression";
            literal |= token->kind == TokenKind::String;
            tail = token->kind == TokenKind::Symbol && IsTail(text) ? text : std::string_view();
            if (token->kind != TokenKind::String && tail.empty() && !IsWrapper(*token, text))
                return "covers more than a literal expression";
        }
        return isRow && !literal ? "covers no literal" : "";
    }

    // _T("...") and its like
    bool IsWrapper(const Token& token, std::string_view text) const {
        if (!isCpp_) return false;
        if (token.kind == TokenKind::Symbol) return text == "(" || text == ")";
        return token.kind == TokenKind::Identifier && IsTextMacro(text);
    }

    std::string CheckReplacement(Checked& checked, std::string_view tail) const {
        const TextEdit& edit = *checked.edit;
        const std::string_view text = edit.text;
        checked.tokens = Tokenize(text, isCpp_, KeepComments::Yes);
        for (const Token& token : checked.tokens) {
            if (token.kind == TokenKind::Bad) return "its replacement is no complete text";
            if (token.kind == TokenKind::Comment &&
                !IsClosed(TextOf(text, token), token.end == text.size(), edit.end))
                return "its replacement leaves a comment open";
        }
        std::erase_if(checked.tokens, [](const Token& token) { return token.kind == TokenKind::Comment; });
        if (!checked.isRow) return {};
        int depth = 0;
        std::string_view last;
        for (const Token& token : checked.tokens) {
            const std::string_view symbol =
                token.kind == TokenKind::Symbol ? TextOf(text, token) : std::string_view();
            if (last == ";" || (depth += (symbol == "(") - (symbol == ")")) < 0)
                return "its replacement is no expression";
            last = symbol;
        }
        if (depth != 0 || checked.tokens.empty()) return "its replacement is no expression";
        return (IsTail(last) ? last : std::string_view()) == tail ? "" : "its replacement ends otherwise";
    }

    bool IsClosed(std::string_view comment, bool atEnd, std::size_t next) const {
        if (!atEnd) return true;
        if (comment.starts_with("//"))
            return next == original_.size() || original_[next] == '\r' || original_[next] == '\n';
        return comment.size() >= 2 &&
               (comment[0] == '{' ? comment.back() == '}'
                                  : comment.size() >= 4 && comment.ends_with(isCpp_ ? "*/" : "*)"));
    }

    // The result's tokens are compared by place: between the edits each stands where the original's stands,
    // and in a replacement as if it were alone.
    void CheckTogether(const std::vector<Checked>& edits) const {
        TextEdits all;
        for (const Checked& checked : edits)
            all.push_back(*checked.edit);
        const std::string result = ApplyEdits(original_, std::move(all));
        const std::vector<Token> tokens = Tokenize(result, isCpp_);
        auto got = tokens.cbegin();
        auto kept = tokens_.cbegin();
        std::size_t place = 0; // in the result
        bool sound = true;
        std::string* blamed = nullptr;
        const auto blame = [&](std::string* reason, bool same) {
            // What follows a broken place may only seem broken; the next proof will tell.
            if (!same && sound && reason) *reason = "changes what stands around it";
            sound = same;
        };
        for (std::size_t i = 0, done = 0; i <= edits.size(); ++i) {
            const std::size_t gapEnd = i < edits.size() ? edits[i].edit->begin : original_.size();
            const std::size_t shift = place - done;
            place += gapEnd - done;
            std::string* next = i < edits.size() ? edits[i].reason : nullptr;
            blame(blamed ? blamed : next,
                  SameTokens(kept, tokens_.cend(), gapEnd, shift, got, tokens.cend(), place));
            if (i == edits.size()) break;
            const Checked& checked = edits[i];
            const std::size_t begin = place;
            place += checked.edit->text.size();
            auto own = checked.tokens.cbegin();
            blame(checked.reason, SameTokens(own, checked.tokens.cend(), checked.edit->text.size(), begin,
                                             got, tokens.cend(), place));
            done = checked.edit->end;
            while (kept != tokens_.cend() && kept->end <= done)
                ++kept;
            blamed = checked.reason;
        }
    }

    // Whether the expected tokens that begin before `end` are the ones found before `gotEnd`; moves both
    // behind them.
    static bool SameTokens(Iterator& expected, Iterator expectedEnd, std::size_t end, std::size_t shift,
                           Iterator& got, Iterator gotEnd, std::size_t gotLimit) {
        bool same = true;
        for (; expected != expectedEnd && expected->begin < end; ++expected) {
            if (expected->kind == TokenKind::Comment) continue;
            while (got != gotEnd && got->begin < expected->begin + shift) {
                ++got;
                same = false;
            }
            const bool found = got != gotEnd && got->kind == expected->kind &&
                               got->begin == expected->begin + shift && got->end == expected->end + shift;
            same &= found;
            got += found;
        }
        for (; got != gotEnd && got->begin < gotLimit; ++got)
            same = false;
        return same;
    }

    std::string_view original_;
    bool isCpp_;
    std::vector<Token> tokens_;
};

} // namespace

bool EditVerdicts::Sound() const {
    const auto empty = [](const std::string& reason) { return reason.empty(); };
    return std::ranges::all_of(rows, empty) && std::ranges::all_of(others, empty);
}

EditVerdicts CheckEdits(std::string_view original, const TextEdits& rows, const TextEdits& others,
                        bool isCpp) {
    EditVerdicts verdicts{std::vector<std::string>(rows.size()), std::vector<std::string>(others.size())};
    std::vector<Checked> edits;
    for (std::size_t i = 0; i < rows.size(); ++i)
        edits.push_back({&rows[i], true, &verdicts.rows[i], false, {}});
    for (std::size_t i = 0; i < others.size(); ++i)
        edits.push_back({&others[i], false, &verdicts.others[i], false, {}});
    std::stable_sort(edits.begin(), edits.end(), [](const Checked& a, const Checked& b) {
        return a.edit->begin != b.edit->begin ? a.edit->begin < b.edit->begin : a.edit->end < b.edit->end;
    });
    Proof(original, isCpp).Check(edits);
    return verdicts;
}

} // namespace glotta
