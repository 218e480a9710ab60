// Walks a unit once and collects the names that the compiler must know as constants.
#include "scanner/ConstRewrite.h"
#include "scanner/PCharArguments.h"

namespace glotta {

namespace {

using Words = std::unordered_set<std::string_view, TextHash, TextEqual>;

// Words whose operand is a constant: directives of routines and properties.
const Words& OperandWords() {
    static const Words words = {"external", "name", "deprecated", "message", "index", "dispid", "default"};
    return words;
}

} // namespace

class ConstantContexts::Walk {
public:
    Walk(ConstantContexts& result, const UnitTokens& tokens) : result_(result), tokens_(tokens) {}

    void Run() {
        for (const Token& token : tokens_.Directives())
            Directive(tokens_.Text().substr(token.begin, token.end - token.begin));
        for (const Token& token : tokens_.Alternatives())
            if (token.kind == TokenKind::Identifier)
                result_.alternative_.emplace(tokens_.Text().substr(token.begin, token.end - token.begin));
        for (at_ = 0; at_ < tokens_.Count(); ++at_) {
            if (tokens_.IsWord(at_)) {
                Word();
                arguments_.TakeWord(Text(at_));
                pointers_.TakeWord(Text(at_), blocks_ > 0);
            } else if (tokens_.Kind(at_) == TokenKind::Symbol) {
                Symbol();
                arguments_.TakeSymbol(Text(at_)[0]);
                pointers_.TakeSymbol(Text(at_) == ":=" ? '!' : Text(at_)[0], blocks_ > 0);
            } else {
                arguments_.TakeOther();
                pointers_.TakeOther();
            }
        }
    }

private:
    enum class Section { None, Const, Var, Type, Heading };

    std::string_view Text(std::size_t index) const { return tokens_[index]; }
    bool Is(std::size_t index, std::string_view word) const { return tokens_.Is(index, word); }
    void Collect(std::size_t index) { result_.constant_.emplace(Text(index)); }

    void Directive(std::string_view directive) {
        directive.remove_prefix(directive.starts_with("(*") ? 3 : 2);
        if (!StartsWithText(directive, "IF ") && !StartsWithText(directive, "ELSEIF ")) return;
        for (const Token& token : Tokenize(directive, false))
            if (token.kind == TokenKind::Identifier)
                result_.constant_.emplace(directive.substr(token.begin, token.end - token.begin));
    }

    void Enter(Section section) {
        section_ = section;
        collecting_ = false;
        named_ = false;
    }

    void Word() {
        const bool member = at_ > 0 && Text(at_ - 1) == ".";
        if (!member && blocks_ > 0 ? Statement() : !member && open_ == 0 && Declaration()) return;
        if (blocks_ > 0) {
            if (collecting_) Collect(at_);
            if (arguments_.Routine() || pointers_.AssignsToPChar(false)) result_.pointer_.emplace(Text(at_));
            return;
        }
        if (section_ == Section::Const && !named_) {
            named_ = true;
            ++result_.declared_[std::string(Text(at_))];
        } else if (collecting_ || brackets_ > 0 || section_ == Section::Const) {
            Collect(at_);
        } else if (OperandWords().contains(Text(at_))) {
            collecting_ = true;
        }
    }

    // Within begin and end. True when the word was one of structure.
    bool Statement() {
        if (Is(at_, "begin") || Is(at_, "try") || Is(at_, "case") || Is(at_, "asm"))
            ++blocks_;
        else if (Is(at_, "end"))
            --blocks_;
        else if (Is(at_, "const"))
            collecting_ = true;
        else
            return false;
        return true;
    }

    bool Declaration() {
        struct Row {
            std::string_view word;
            Section section;
        };
        static constexpr Row Rows[] = {
            {"const", Section::Const},
            {"resourcestring", Section::Const},
            {"var", Section::Var},
            {"threadvar", Section::Var},
            {"type", Section::Type},
            {"label", Section::None},
            {"exports", Section::None},
            {"uses", Section::None},
            {"implementation", Section::None},
            {"procedure", Section::Heading},
            {"function", Section::Heading},
            {"constructor", Section::Heading},
            {"destructor", Section::Heading},
            {"operator", Section::Heading},
            {"property", Section::Type},
            {"private", Section::Type},
            {"protected", Section::Type},
            {"public", Section::Type},
            {"published", Section::Type},
            {"end", Section::Type},
        };
        for (const Row& row : Rows)
            if (Is(at_, row.word)) {
                // A procedural type is no heading: what follows it may be an initial value.
                if (row.section != Section::Heading || section_ == Section::None ||
                    section_ == Section::Heading || !(Text(at_ - 1) == ":" || Text(at_ - 1) == "="))
                    Enter(row.section);
                return true;
            }
        if (!Is(at_, "begin") && !Is(at_, "asm") && !Is(at_, "initialization") && !Is(at_, "finalization"))
            return false;
        Enter(Section::None);
        blocks_ = 1;
        return true;
    }

    void Symbol() {
        const std::string_view symbol = Text(at_);
        if (symbol == "(") {
            ++open_;
            if (section_ == Section::Type) collecting_ = false;
        } else if (symbol == ")") {
            open_ -= open_ > 0 ? 1 : 0;
            if (section_ == Section::Heading) collecting_ = false;
        } else if (symbol == "[") {
            brackets_ += blocks_ == 0 ? 1 : 0;
        } else if (symbol == "]") {
            brackets_ -= brackets_ > 0 ? 1 : 0;
        } else if (symbol == ";") {
            if (section_ == Section::Const && open_ == 0) named_ = false;
            collecting_ = false;
        } else if (symbol == "=" && blocks_ == 0) {
            collecting_ = true;
        } else if (symbol == ".." || (symbol == ":" && blocks_ > 0)) {
            Labels(symbol);
        }
    }

    // The names before the colon of a case label, and on both sides of a range.
    void Labels(std::string_view symbol) {
        if (symbol == "..") Collect(at_ + 1);
        for (std::size_t i = at_; i > 0 && tokens_.IsWord(i - 1); i -= 2) {
            Collect(i - 1);
            if (i < 2 || Text(i - 2) != ",") break;
        }
    }

    ConstantContexts& result_;
    const UnitTokens& tokens_;
    std::size_t at_ = 0;
    Section section_ = Section::None;
    bool named_ = false;                            // the declaration's name has passed
    bool collecting_ = false;                       // what follows is a constant expression
    unsigned blocks_ = 0, brackets_ = 0, open_ = 0; // open_: parentheses
    PCharDeclarations pointers_;
    PCharArguments arguments_{false, pointers_.Names()};
};

void ConstantContexts::Add(const UnitTokens& unit) {
    Walk(*this, unit).Run();
}

std::string_view ConstantContexts::WhyConstant(std::string_view name) const {
    if (constant_.contains(name)) return "used where a constant expression is required";
    if (alternative_.contains(name)) return "used in a branch of conditional code that was not followed";
    return pointer_.contains(name) ? "passed where a PChar is required" : "";
}

unsigned ConstantContexts::Declared(std::string_view name) const {
    const auto found = declared_.find(name);
    return found == declared_.end() ? 0 : found->second;
}

} // namespace glotta
