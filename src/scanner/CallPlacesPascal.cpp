// Object Pascal: a call can stand inside a statement part alone.
#include "ide/PascalLexer.h"
#include "scanner/CallPlacesPascalState.h"
#include "scanner/PCharArguments.h"

namespace glotta::places {

using namespace pascal_walk;

namespace {

class Walker : private WalkOf<State, '\''> {
public:
    explicit Walker(std::string_view text) : WalkOf(text) {}

    Walked Walk() {
        pascal::Lexer lexer(text_);
        for (Token token; lexer.Next(token);)
            Take(token);
        CloseConst(text_.size());
        return std::move(out_);
    }

private:
    void Take(const Token& token) {
        switch (token.kind) {
        case TokenKind::Identifier: {
            const Word word = s_.before == '.' ? Word::None : wordTable.Find(TextOf(token));
            if (s_.section == Section::Heading && s_.depth == 0 && s_.before == ':')
                s_.resultIsPChar = IsPCharType(TextOf(token));
            if (s_.header) TakeInHeader(word, AWord);
            if (word != Word::None) TakeWord(word, token);
            s_.word = word;
            s_.before = AWord;
            arguments_.TakeWord(TextOf(token));
            pointers_.TakeWord(TextOf(token), IsStatement(s_.frame));
            return;
        }
        case TokenKind::Symbol: {
            const char symbol = Symbol(token);
            arguments_.TakeSymbol(symbol);
            pointers_.TakeSymbol(symbol, IsStatement(s_.frame));
            if (s_.header) TakeInHeader(Word::None, symbol);
            TakeSymbol(symbol, token);
            s_.word = symbol == '.' ? Word::None : s_.word;
            s_.before = symbol;
            return;
        }
        case TokenKind::String:
            s_.header = false;
            TakeLiteral(token);
            return;
        case TokenKind::Directive:
            Cover(token, Reason::Directive);
            TakeDirective(token);
            return;
        case TokenKind::Comment:
            Cover(token, Reason::Comment);
            return;
        case TokenKind::Asm:
            Cover(token, Reason::Assembler);
            return;
        case TokenKind::Bad:
            Cover(token, Reason::CutsToken);
            [[fallthrough]];
        default:
            s_.header = false;
            s_.before = ANumber;
            arguments_.TakeOther();
            pointers_.TakeOther();
        }
    }

    void TakeLiteral(const Token& token) {
        Place place{token.begin, token.end, WhyNot(TextOf(token)), true};
        if (place.reason == Reason::None || place.reason == Reason::SingleCharacter)
            place.routine = arguments_.Routine();
        if (place.routine) place.reason = Reason::PCharArgument;
        if (place.reason == Reason::None && pointers_.AssignsToPChar(s_.resultIsPChar))
            place.reason = Reason::PCharVariable;
        out_.places.push_back(place);
        s_.before = ALiteral;
        arguments_.TakeOther();
        pointers_.TakeOther();
    }

    char Symbol(const Token& token) const {
        const char first = text_[token.begin];
        if (token.end - token.begin == 1) return first;
        return first == '.' ? DotDot : Assign;
    }

    void Push(Frame frame) {
        State inner = s_;
        inner.frame = frame;
        inner.section = Section::None;
        inner.depth = inner.constSection = 0;
        inner.inAttribute = inner.ofSeen = inner.inLabel = inner.inlineConst = false;
        nesting_.Push(s_, inner);
        s_ = inner;
    }
    bool Pop() { return nesting_.Pop(s_); }

    void OpenConst(std::size_t begin) {
        out_.constSections.push_back({begin, begin, s_.inRoutine, s_.inClass});
        s_.constSection = static_cast<std::uint32_t>(out_.constSections.size());
    }
    void CloseConst(std::size_t end) {
        if (s_.constSection) out_.constSections[s_.constSection - 1].end = end;
        s_.constSection = 0;
    }
    void Enter(Section section, const Token& token) {
        CloseConst(token.begin);
        s_.section = section;
    }

    // Behind "= class" and its like: is there a body at all?
    void TakeInHeader(Word word, char symbol) {
        if (word == Word::ClassKind || symbol == '(' || symbol == ')' || s_.depth > 0) return;
        const bool metaclass = word == Word::Of && s_.word == Word::Class;
        if (metaclass || symbol == ';' || symbol == ',' || symbol == '>')
            Pop();
        else
            s_.header = false;
    }
    void OpenType() {
        Push(Frame::TypeBody);
        s_.inClass = s_.header = true;
    }

    // The unit's own level, wherever the walk is.
    void Reset() {
        const bool package = s_.isPackage;
        s_ = State{};
        s_.isPackage = package;
    }

    void TakeWord(Word word, const Token& token) {
        switch (word) {
        case Word::Implementation:
        case Word::Initialization:
            CloseConst(token.begin);
            Reset();
            if (word == Word::Initialization) Push(Frame::Begin);
            return;
        default:
            if (s_.frame == Frame::Done) return;
            if (IsStatement(s_.frame))
                TakeInStatement(word, token);
            else
                TakeInDeclaration(word, token);
        }
    }

    void TakeInStatement(Word word, const Token& token) {
        switch (word) {
        case Word::Begin:
        case Word::Try:
            return Push(Frame::Begin);
        case Word::Case:
            return Push(Frame::Case);
        case Word::Repeat:
            return Push(Frame::Repeat);
        case Word::Asm:
            return Push(Frame::Asm);
        case Word::End:
            while (s_.frame == Frame::Repeat)
                Pop();
            if (IsStatement(s_.frame)) Pop();
            if (s_.frame == Frame::Routine) Pop();
            return;
        case Word::Until:
            if (s_.frame == Frame::Repeat) Pop();
            return;
        case Word::Of:
            if (s_.frame == Frame::Case && !s_.ofSeen && s_.depth == 0) {
                s_.ofSeen = true;
                BeginLabel();
            }
            return;
        case Word::Const:
            s_.inlineConst = true;
            return;
        case Word::Routine:
            if (s_.before != ';') {
                Push(Frame::Routine); // an anonymous one
                s_.inRoutine = true;
                s_.section = Section::Heading;
                return;
            }
            [[fallthrough]];
        case Word::Type:
        case Word::Uses:
        case Word::ResourceString:
            // No statement goes on so: some "end" was never seen.
            if (s_.before == ';') {
                Reset();
                TakeInDeclaration(word, token);
            }
            return;
        default:
            return;
        }
    }

    void BeginLabel() {
        s_.inLabel = true;
        s_.firstLabel = static_cast<std::uint32_t>(out_.places.size());
    }

    void TakeInDeclaration(Word word, const Token& token) {
        const bool startsAnew = word == Word::Routine || word == Word::Type || word == Word::Begin ||
                                word == Word::ResourceString || word == Word::Uses;
        if (startsAnew && s_.before == ';') {
            s_.depth = 0; // a parenthesis that nothing closed
            s_.inAttribute = false;
        }
        switch (word) {
        case Word::Record:
            return OpenType();
        case Word::End:
            CloseConst(token.begin);
            if (s_.frame == Frame::TypeBody) Pop();
            return;
        case Word::Begin:
        case Word::Asm:
            CloseConst(token.begin);
            while (s_.frame == Frame::TypeBody && Pop()) {
            }
            return Push(word == Word::Begin ? Frame::Begin : Frame::Asm);
        default:
            if (s_.depth == 0) TakeSectionWord(word, token);
        }
    }

    void TakeSectionWord(Word word, const Token& token) {
        switch (word) {
        case Word::Package:
            s_.isPackage |= s_.before == Nothing;
            return;
        case Word::Interface:
            if (s_.before == '=') return OpenType();
            Enter(Section::None, token);
            s_.inInterface = true;
            return;
        case Word::Object:
        case Word::Class:
            if (s_.before == '=' || s_.word == Word::Packed) return OpenType();
            if (word == Word::Class && s_.before != ':' && s_.before != ',') Enter(Section::None, token);
            return;
        case Word::Const:
            if (s_.word == Word::Of && s_.before == AWord) return;
            Enter(Section::Const, token);
            return OpenConst(token.end);
        case Word::ResourceString:
            return Enter(Section::ResourceString, token);
        case Word::Type:
            if (s_.before != '=' && s_.before != ':') Enter(Section::Type, token);
            return;
        case Word::Var:
            return Enter(Section::Var, token);
        case Word::Label:
        case Word::Property:
            return Enter(word == Word::Label ? Section::None : Section::Heading, token);
        case Word::Uses:
            return Enter(Section::Uses, token);
        case Word::Contains:
            if (s_.isPackage) Enter(Section::Uses, token);
            return;
        case Word::Exports:
            return Enter(Section::Exports, token);
        case Word::Operator:
            if (s_.word == Word::Class) TakeRoutine(token);
            return;
        case Word::Routine:
            if (!IsRoutineType()) TakeRoutine(token);
            return;
        case Word::External:
            if (s_.section != Section::Directives &&
                (s_.section != Section::Heading || s_.word == Word::Routine))
                return;
            if (s_.frame == Frame::Routine) Pop();
            s_.section = Section::External;
            return;
        case Word::Forward:
            if (s_.frame == Frame::Routine && s_.section == Section::Directives) Pop();
            return;
        case Word::Visibility:
            if (s_.frame == Frame::TypeBody && s_.before != ':' && s_.before != '=')
                Enter(Section::None, token);
            return;
        default:
            return;
        }
    }

    // "= procedure", "reference to function", "<T: constructor>"
    bool IsRoutineType() const {
        return s_.before == '=' || s_.before == ':' || s_.before == ',' ||
               (s_.before == AWord && (s_.word == Word::To || s_.word == Word::Of));
    }
    void TakeRoutine(const Token& token) {
        Enter(Section::None, token);
        if (s_.frame != Frame::TypeBody && !s_.inInterface) {
            Push(Frame::Routine);
            s_.inRoutine = true;
        }
        s_.section = Section::Heading;
        s_.inName = true;
        s_.resultIsPChar = false;
        pointers_.BeginRoutine();
    }
    // "procedure TForm1.": no such routine is nested in another, so a body was missing.
    void LeaveOuterRoutines() {
        const State heading = s_;
        while (s_.frame == Frame::Routine && Pop()) {
        }
        if (!IsStatement(s_.frame)) {
            s_.section = Section::None;
            Push(Frame::Routine);
            s_.inRoutine = true;
            s_.section = Section::Heading;
        } else {
            s_ = heading;
        }
    }

    void TakeSymbol(char symbol, const Token& token) {
        switch (symbol) {
        case '[':
            s_.inName = false;
            if (!s_.inAttribute && OpensAttribute()) {
                s_.inAttribute = true;
                s_.attributeDepth = s_.depth;
            }
            [[fallthrough]];
        case '(':
            s_.inName = false;
            ++s_.depth;
            return;
        case ']':
        case ')':
            if (s_.depth) --s_.depth;
            if (s_.inAttribute && s_.depth <= s_.attributeDepth) s_.inAttribute = false;
            return;
        case ';':
            if (s_.depth == 0) EndDeclarationOrStatement();
            return;
        case ':':
            s_.inName = false;
            if (s_.inLabel && s_.depth == 0) EndLabel();
            return;
        case '.':
            if (s_.word == Word::End && s_.before == AWord) {
                CloseConst(token.begin);
                Reset();
                s_.frame = Frame::Done;
            } else if (s_.inName) {
                s_.inName = false;
                if (s_.frame == Frame::Routine) LeaveOuterRoutines();
            }
            return;
        case DotDot:
            if (s_.before == ALiteral && AllowsCalls()) out_.places.back().reason = Reason::Range;
            return;
        case '+':
            if (s_.before == ALiteral && out_.places.back().reason == Reason::SingleCharacter)
                out_.places.back().reason = Reason::None;
            return;
        default:
            return;
        }
    }

    void EndDeclarationOrStatement() {
        if (IsStatement(s_.frame)) {
            s_.inlineConst = false;
            if (s_.frame == Frame::Case && s_.ofSeen) BeginLabel();
            return;
        }
        switch (s_.section) {
        case Section::Heading:
        case Section::External:
            s_.section = Section::Directives;
            return;
        case Section::Uses:
        case Section::Exports:
            s_.section = Section::None;
            return;
        default:
            return;
        }
    }

    void EndLabel() {
        for (std::size_t i = s_.firstLabel; i < out_.places.size(); ++i)
            if (out_.places[i].literal) out_.places[i].reason = Reason::CaseLabel;
        s_.inLabel = false;
    }

    bool OpensAttribute() const {
        if (IsStatement(s_.frame)) return false;
        switch (s_.before) {
        case ';':
        case ']':
            return true;
        case '(':
            return s_.section == Section::Heading;
        case AWord:
            return s_.word == Word::Visibility || s_.word == Word::Type || s_.word == Word::Var ||
                   s_.word == Word::Const || s_.word == Word::Record || s_.word == Word::Class ||
                   s_.word == Word::Interface || s_.word == Word::Implementation;
        case ')':
            return s_.frame == Frame::TypeBody && s_.section == Section::None;
        default:
            return false;
        }
    }

    bool AllowsCalls() const { return IsStatement(s_.frame) && !s_.inlineConst; }

    Reason WhyNot(std::string_view literal) const {
        if (IsStatement(s_.frame)) {
            if (s_.inlineConst) return Reason::InlineConst;
            if (s_.before == DotDot) return Reason::Range;
            return s_.before != '+' && IsSingleCharacter(literal) ? Reason::SingleCharacter : Reason::None;
        }
        if (s_.frame == Frame::Done) return Reason::AfterEnd;
        if (s_.inAttribute)
            return literal.starts_with("'{") && literal.size() == 40 ? Reason::Guid : Reason::Attribute;
        if (s_.before == AWord) {
            if (s_.word == Word::Deprecated) return Reason::Deprecated;
            if (s_.word == Word::Message && s_.section == Section::Directives) return Reason::Message;
        }
        return WhyNotInSection();
    }

    Reason WhyNotInSection() const {
        switch (s_.section) {
        case Section::Const:
            return Reason::ConstSection;
        case Section::ResourceString:
            return Reason::ResourceString;
        case Section::Var:
            return Reason::Variable;
        case Section::Type:
            return Reason::TypeSection;
        case Section::Uses:
            return Reason::UsedUnit;
        case Section::Exports:
            return Reason::ExportedName;
        case Section::External:
            return Reason::External;
        case Section::Heading:
            return s_.depth > 0 ? Reason::DefaultParameter : Reason::Declaration;
        case Section::Directives:
            return s_.word == Word::Name && s_.before == AWord ? Reason::External : Reason::Declaration;
        default:
            return s_.frame == Frame::TypeBody ? Reason::TypeSection : Reason::Declaration;
        }
    }

    static bool IsSingleCharacter(std::string_view literal) {
        if (literal[0] != '\'') return literal.find_first_of("#^'", 1) == std::string_view::npos;
        if (literal == "''''") return true;
        if (literal.size() < 3 || literal.size() > 6 || literal.back() != '\'') return false;
        const std::string_view content = literal.substr(1, literal.size() - 2);
        if (content.find('\'') != std::string_view::npos) return false;
        std::size_t characters = 0;
        for (char c : content)
            characters += (c & 0xC0) != 0x80;
        return characters == 1;
    }

    void TakeDirective(const Token& token) {
        switch (BranchOf(TextOf(token))) {
        case Branch::If:
            nesting_.BeginBranch(s_);
            return;
        case Branch::Else:
            if (const State* start = nesting_.BranchStart()) Resume(*start, token);
            return;
        case Branch::EndIf:
            // "end." in one branch does not end what follows all of them.
            if (const State* start = nesting_.BranchStart(); start && s_.frame == Frame::Done) s_ = *start;
            nesting_.EndBranch();
            return;
        default:
            return;
        }
    }
    void Resume(const State& start, const Token& token) {
        if (s_.constSection != start.constSection) {
            CloseConst(token.begin);
            s_ = start;
            if (s_.constSection) OpenConst(token.end);
        } else {
            s_ = start;
        }
        s_.firstLabel = static_cast<std::uint32_t>(out_.places.size());
    }

    PCharDeclarations pointers_;
    PCharArguments arguments_{false, pointers_.Names()};
};

} // namespace

Walked WalkPascal(std::string_view text) {
    return Walker(text).Walk();
}

} // namespace glotta::places
