// C and C++: a call can stand inside function bodies and constructor initialisers alone.
#include "scanner/CallPlacesWalk.h"

#include "ide/CppLexer.h"
#include "scanner/PCharArguments.h"
#include "scanner/TextMacro.h"
#include "scanner/WordTable.h"

namespace glotta::places {

namespace {

enum class Word : std::uint8_t {
    None,
    Namespace,
    Class, // and struct, union
    Enum,
    Static, // and constexpr and its like
    Extern,
    Case,
    Operator,
    Template,
    Control,   // a statement may follow directly
    Qualifier, // may stand between parameters and body
    Assembler,
    SizeOf,
    Constant,
    Attribute,
    Connective, // "and", "or"
    Char,
    CharPointer // a type that is one by itself
};

constexpr std::pair<std::string_view, Word> words[] = {
    {"namespace", Word::Namespace},
    {"class", Word::Class},
    {"struct", Word::Class},
    {"union", Word::Class},
    {"__interface", Word::Class},
    {"enum", Word::Enum},
    {"static", Word::Static},
    {"constexpr", Word::Static},
    {"constinit", Word::Static},
    {"thread_local", Word::Static},
    {"__thread", Word::Static},
    {"extern", Word::Extern},
    {"case", Word::Case},
    {"operator", Word::Operator},
    {"template", Word::Template},
    {"return", Word::Control},
    {"else", Word::Control},
    {"do", Word::Control},
    {"throw", Word::Control},
    {"goto", Word::Control},
    {"new", Word::Control},
    {"delete", Word::Control},
    {"default", Word::Control},
    {"co_return", Word::Control},
    {"co_yield", Word::Control},
    {"co_await", Word::Control},
    {"this", Word::Control},
    {"__finally", Word::Control},
    {"const", Word::Qualifier},
    {"volatile", Word::Qualifier},
    {"override", Word::Qualifier},
    {"final", Word::Qualifier},
    {"noexcept", Word::Qualifier},
    {"try", Word::Qualifier},
    {"__try", Word::Qualifier},
    {"mutable", Word::Qualifier},
    {"asm", Word::Assembler},
    {"_asm", Word::Assembler},
    {"__asm", Word::Assembler},
    {"__asm__", Word::Assembler},
    {"sizeof", Word::SizeOf},
    {"alignof", Word::SizeOf},
    {"decltype", Word::SizeOf},
    {"static_assert", Word::Constant},
    {"_Static_assert", Word::Constant},
    {"_Pragma", Word::Constant},
    {"__pragma", Word::Constant},
    {"__declspec", Word::Attribute},
    {"__attribute__", Word::Attribute},
    {"__attribute", Word::Attribute},
    {"alignas", Word::Attribute},
    {"char", Word::Char},
    {"wchar_t", Word::Char},
    {"char16_t", Word::Char},
    {"CHAR", Word::Char},
    {"WCHAR", Word::Char},
    {"TCHAR", Word::Char},
    {"_TCHAR", Word::Char},
    {"Char", Word::Char},
    {"WideChar", Word::Char},
    {"AnsiChar", Word::Char},
    {"LPSTR", Word::CharPointer},
    {"LPCSTR", Word::CharPointer},
    {"LPTSTR", Word::CharPointer},
    {"LPCTSTR", Word::CharPointer},
    {"LPWSTR", Word::CharPointer},
    {"LPCWSTR", Word::CharPointer},
    {"PChar", Word::CharPointer},
    {"PAnsiChar", Word::CharPointer},
    {"PWideChar", Word::CharPointer},
    {"and", Word::Connective},
    {"or", Word::Connective},
    {"not", Word::Connective},
};
constexpr WordTable<Word, std::size(words), LetterCase::Matters> wordTable(words);

enum class Frame : std::uint8_t { Scope, Class, Enum, Block, Group }; // Group: parentheses or brackets

// What the present declaration or statement has shown so far.
enum Seen : std::uint16_t {
    Equals = 1,
    Parameters = 2,      // a closed group
    ParametersLast = 4,  // with nothing but qualifiers behind it
    ConstructorList = 8, // the ":" of a constructor's initialisers
    ClassWord = 16,
    EnumWord = 32,
    NamespaceWord = 64,
    ExternWord = 128,
    StaticWord = 256,
    ArrayName = 512,      // "char x["
    ArrayDeclared = 1024, // "char x[] ="
    CaseWord = 2048,
    AssemblerWord = 4096,
    NotADeclaration = 8192,
    CharWord = 16384,
    PointerDeclared = 32768 // "char* x" or "LPCSTR x"
};

// What stands before a token: a symbol's first character, or one of these.
enum Before : char { Nothing = 0, AWord = 'a', ANumber = '0', ALiteral = '"', Comparison = 'c' };

struct State {
    std::uint32_t parent = 0, level = 0;
    std::uint32_t angles = 0; // open ones behind "template"
    Frame frame = Frame::Scope;
    Reason base = Reason::FileScope; // for a literal directly in this frame
    std::uint16_t seen = 0;
    std::uint8_t names = 0; // words of a possible declaration: "char x" has two
    Word word = Word::None; // before
    char before = Nothing;
    bool inFunction = false;
    bool ofWord = false;         // Group: behind sizeof, __declspec and their like
    bool mayBeAttribute = false; // Group: a bracket where no subscript can stand
    // Group: a parameter list, perhaps
    std::string_view routine = {};
    std::uint32_t parameter = 0, pointers = 0; // the latter: a bit for each
};

class Walker : private WalkOf<State, '"'> {
public:
    explicit Walker(std::string_view text) : WalkOf(text) {}

    Walked Walk() {
        cpp::Lexer lexer(text_);
        for (Token token; lexer.Next(token);)
            Take(token);
        return std::move(out_);
    }

private:
    void Take(const Token& token) {
        switch (token.kind) {
        case TokenKind::Identifier: {
            lastWord_ = TextOf(token);
            const Word word = wordTable.Find(lastWord_);
            TakeWord(word);
            s_.word = word;
            s_.before = AWord;
            arguments_.TakeWord(lastWord_);
            if (!IsTextMacro(lastWord_)) assignsToPointer_ = false;
            return;
        }
        case TokenKind::Symbol:
            assignsToPointer_ = AssignsToPointer(token);
            TakeSymbol(token);
            arguments_.TakeSymbol(text_[token.begin]);
            return;
        case TokenKind::String:
            TakeLiteral(token);
            return;
        case TokenKind::Directive:
            Cover(token, Reason::Directive);
            TakeDirective(TextOf(token));
            return;
        case TokenKind::Comment:
            return Cover(token, Reason::Comment);
        case TokenKind::Asm:
            return Cover(token, Reason::Assembler);
        case TokenKind::Character:
        case TokenKind::Bad:
            Cover(token, Reason::CutsToken);
            [[fallthrough]];
        default:
            s_.seen |= NotADeclaration;
            s_.before = ANumber;
            assignsToPointer_ = false;
            arguments_.TakeOther();
        }
    }

    bool Has(unsigned flags) const { return s_.seen & flags; }
    void Forget() {
        s_.seen = 0;
        s_.names = 0;
    }

    // Why no call can stand at a literal that comes now.
    Reason Effective() const {
        if (Has(AssemblerWord)) return Reason::Assembler;
        if (s_.frame == Frame::Scope || s_.frame == Frame::Class)
            return Has(ConstructorList) ? Reason::None : s_.base;
        if (s_.base != Reason::None)
            return s_.base == Reason::FileScope && s_.frame == Frame::Group && Has(Equals)
                       ? Reason::DefaultArgument
                       : s_.base;
        return Has(StaticWord)      ? Reason::StaticInitialiser
               : Has(ArrayDeclared) ? Reason::ArrayInitialiser
               : Has(CaseWord)      ? Reason::CaseLabel
               : PointsToChar()     ? Reason::CharPointer
                                    : Reason::None;
    }

    bool PointsToChar() const { return Has(PointerDeclared) && Has(Equals); }

    void Push(Frame frame, Reason base, bool inFunction) {
        State inner;
        inner.frame = frame;
        inner.base = base;
        inner.inFunction = inFunction;
        inner.level = s_.level;
        nesting_.Push(s_, inner);
        s_ = inner;
    }

    void TakeLiteral(const Token& token) {
        const bool behindLiteral = s_.before == ALiteral;
        const bool behindMacro = s_.before == AWord && s_.word == Word::None;
        if (behindLiteral) out_.places.back().joinedBehind = true;
        Place place{token.begin, token.end, Effective(), true};
        place.joinedBefore = behindLiteral || behindMacro;
        place.routine = arguments_.Routine();
        if (place.routine && place.reason == Reason::None) place.reason = Reason::PCharArgument;
        if (place.reason == Reason::None && assignsToPointer_) place.reason = Reason::CharPointerVariable;
        assignsToPointer_ = false;
        arguments_.TakeOther();
        out_.places.push_back(place);
        behindAngle_ = s_.before == '<';
        s_.seen |= NotADeclaration;
        s_.before = ALiteral;
    }

    void TakeWord(Word word) {
        if (s_.before == ALiteral && word == Word::None) out_.places.back().joinedBehind = true;
        if (s_.angles) return;
        if (word != Word::Qualifier) s_.seen &= static_cast<std::uint16_t>(~ParametersLast);
        switch (word) {
        case Word::None:
            if (Has(NotADeclaration) || s_.before == ':' || s_.before == '.') return;
            if (s_.names < 2) ++s_.names;
            if (s_.names == 2) pointers_.AddVariable(lastWord_, Has(PointerDeclared));
            return;
        case Word::Namespace:
            s_.seen |= NamespaceWord;
            return;
        case Word::Class:
            s_.seen |= ClassWord;
            return;
        case Word::Enum:
            s_.seen |= EnumWord;
            return;
        case Word::Static:
            s_.seen |= StaticWord;
            return;
        case Word::Extern:
            s_.seen |= ExternWord;
            return;
        case Word::Case:
            s_.seen |= CaseWord;
            return;
        case Word::Assembler:
            s_.seen |= AssemblerWord;
            return;
        case Word::Char:
        case Word::CharPointer:
            if (!Has(NotADeclaration)) s_.seen |= word == Word::Char ? CharWord : PointerDeclared;
            if (!Has(NotADeclaration) && s_.names < 2) ++s_.names;
            return;
        case Word::Control:
            s_.names = 0;
            return;
        default:
            return;
        }
    }

    void TakeSymbol(const Token& token) {
        const char symbol = text_[token.begin];
        const std::size_t length = token.end - token.begin;
        switch (symbol) {
        case '(':
            Open(symbol);
            return;
        case '[':
            if (!Has(NotADeclaration) && s_.names == 2 && s_.before == AWord) s_.seen |= ArrayName;
            Open(symbol);
            return;
        case ')':
        case ']':
            Close(symbol);
            return;
        case '{':
            OpenBrace();
            s_.before = '{';
            return;
        case '}':
            CloseBrace();
            s_.before = '}';
            return;
        case ';':
            Forget();
            s_.angles = 0;
            break;
        case ':':
            if (length == 1) TakeColon();
            break;
        case '=':
            if (length == 1) TakeEquals();
            break;
        case '<':
        case '>':
            if (length <= 2) TakeAngle(symbol, length, text_[token.end - 1] != symbol);
            break;
        case '*':
            if (Has(CharWord) && !Has(NotADeclaration)) s_.seen |= PointerDeclared;
            break;
        case ',':
            if (IsParameterList()) EndParameter();
            break;
        case '&':
            break;
        default:
            s_.seen |= NotADeclaration;
        }
        if (symbol != '&' && !(symbol == ':' && length == 2))
            s_.seen &= static_cast<std::uint16_t>(~ParametersLast);
        s_.before = length > 1 && symbol != ':' && symbol != '.' && symbol != '-'
                        ? static_cast<char>(Comparison)
                        : symbol;
        if (symbol == '-' && length > 1) s_.before = '.';
    }

    // "p =" of a pointer to characters that is not declared here; a macro like _T may follow.
    bool AssignsToPointer(const Token& symbol) const {
        if (TextOf(symbol) == "(") return assignsToPointer_;
        return TextOf(symbol) == "=" && s_.before == AWord && s_.word == Word::None &&
               !Has(PointerDeclared) && pointers_.IsVariable(lastWord_);
    }

    bool IsParameterList() const {
        return s_.frame == Frame::Group && s_.base == Reason::FileScope && !s_.routine.empty();
    }
    void EndParameter() {
        if (Has(PointerDeclared) && s_.parameter < 32) s_.pointers |= std::uint32_t{1} << s_.parameter;
        ++s_.parameter;
        s_.seen &= static_cast<std::uint16_t>(~(CharWord | PointerDeclared | NotADeclaration));
        s_.names = 0;
    }

    void TakeAngle(char symbol, std::size_t length, bool compares) {
        if (symbol == '>' && length == 1 && s_.before == ALiteral && behindAngle_)
            out_.places.back().reason = Reason::TemplateArgument;
        if (compares && length == 2) {
            s_.seen |= NotADeclaration;
        } else if (symbol == '<' && s_.before == AWord && s_.word == Word::Template) {
            s_.angles = 1;
        } else if (s_.angles) {
            const auto count = static_cast<std::uint32_t>(length);
            s_.angles = symbol == '<' ? s_.angles + count : s_.angles - std::min(s_.angles, count);
        } else if (length == 2) {
            s_.seen |= NotADeclaration;
        }
    }

    void TakeEquals() {
        if (s_.angles || (s_.before == AWord && s_.word == Word::Operator)) return;
        if (s_.before == ']' && Has(ArrayName)) s_.seen |= ArrayDeclared;
        s_.seen |= Equals | NotADeclaration;
    }

    void TakeColon() {
        if (s_.frame == Frame::Scope || s_.frame == Frame::Class) {
            if (Has(ParametersLast) && !Has(Equals)) s_.seen |= ConstructorList;
        } else if (Has(CaseWord)) {
            Forget();
        }
    }

    void Open(char symbol) {
        const bool word = s_.before == AWord;
        const bool ofWord = word && (s_.word == Word::SizeOf || s_.word == Word::Constant ||
                                     s_.word == Word::Attribute || s_.word == Word::Assembler);
        const bool attribute = symbol == '[' && s_.before == '[' && s_.mayBeAttribute;
        const bool call = !IsTextMacro(lastWord_) && word && PointsToChar() && s_.frame == Frame::Block &&
                          Effective() == Reason::CharPointer;
        const Reason base = attribute                    ? Reason::Attribute
                            : call                       ? Reason::None
                            : !ofWord                    ? Effective()
                            : s_.word == Word::SizeOf    ? Reason::SizeOf
                            : s_.word == Word::Attribute ? Reason::Attribute
                            : s_.word == Word::Assembler ? Reason::Assembler
                                                         : Reason::ConstantExpression;
        const bool subscript = word || s_.before == ')' || s_.before == ']' || s_.before == ALiteral;
        const std::string_view routine =
            word && symbol == '(' && s_.word == Word::None ? lastWord_ : std::string_view();
        Push(Frame::Group, base, s_.inFunction);
        s_.routine = routine;
        s_.ofWord = ofWord;
        s_.mayBeAttribute = symbol == '[' && !subscript;
        s_.before = symbol;
    }

    void Close(char symbol) {
        const bool ofWord = s_.ofWord;
        if (symbol == ')' && IsParameterList()) {
            EndParameter();
            pointers_.AddRoutine(s_.routine, s_.pointers);
        }
        if (s_.frame == Frame::Group) nesting_.Pop(s_);
        if (symbol == ')' && !ofWord && !s_.angles) s_.seen |= Parameters | ParametersLast | NotADeclaration;
        s_.before = symbol;
    }

    void OpenBrace() {
        const Reason effective = BraceReason();
        const bool declares = s_.frame == Frame::Scope || s_.frame == Frame::Class;
        s_.angles = 0;
        if (Has(EnumWord) && !Has(Parameters | Equals))
            Push(Frame::Enum, Reason::FileScope, false);
        else if (declares && IsScope())
            Push(Frame::Scope, Reason::FileScope, false);
        else if (Has(ClassWord) && !Has(Equals | ParametersLast) && !(s_.inFunction && Has(Parameters)))
            Push(Frame::Class, Reason::FileScope, false);
        else if (declares && IsBody())
            Push(Frame::Block, Reason::None, true);
        else
            Push(Frame::Block, effective, s_.inFunction || effective == Reason::None);
    }
    Reason BraceReason() {
        if (s_.before == ']' && Has(ArrayName)) s_.seen |= ArrayDeclared;
        return Effective();
    }
    bool IsScope() const {
        return Has(NamespaceWord) || (Has(ExternWord) && s_.before == ALiteral && !Has(Parameters | Equals));
    }
    // Behind a constructor's ":" a brace opens the body unless it belongs to a member: "a(1), b{2} {".
    bool IsBody() const {
        if (Has(ConstructorList))
            return s_.before == ')' || s_.before == '}' || (s_.before == AWord && s_.word != Word::None);
        return Has(Parameters) && !Has(Equals);
    }

    void CloseBrace() {
        while (s_.frame == Frame::Group && nesting_.Pop(s_)) {
        }
        const bool wasBody = s_.inFunction;
        if (!nesting_.Pop(s_)) return Forget();
        const bool memberBrace = Has(ConstructorList) && s_.before != ')' && s_.before != '}' &&
                                 !(s_.before == AWord && s_.word != Word::None);
        const bool goesOn = s_.frame == Frame::Group || memberBrace || Has(Equals | ArrayDeclared) ||
                            (Has(StaticWord) && wasBody && s_.inFunction);
        if (!goesOn) Forget();
    }

    void TakeDirective(std::string_view directive) {
        if (directive[0] != '#') return;
        switch (BranchOf(directive)) {
        case Branch::If:
            return nesting_.BeginBranch(s_);
        case Branch::Else:
            if (const State* start = nesting_.BranchStart()) s_ = *start;
            return;
        case Branch::EndIf:
            return nesting_.EndBranch();
        default:
            return;
        }
    }

    PCharNames pointers_;
    PCharArguments arguments_{true, pointers_};
    bool behindAngle_ = false; // the last literal
    bool assignsToPointer_ = false;
    std::string_view lastWord_;
};

} // namespace

Walked WalkCpp(std::string_view text) {
    return Walker(text).Walk();
}

} // namespace glotta::places
