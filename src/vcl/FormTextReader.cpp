// Every byte of the file belongs to a piece: a node's head, a property, or a node's end, each with the blanks
// before it and the line's end behind it. So the pieces in order are the file.
#include "platform/Error.h"
#include "platform/Text.h"
#include "vcl/FormLiteral.h"
#include "vcl/FormText.h"

#include <array>
#include <charconv>

namespace glotta {

namespace {

bool IsBlank(char c) {
    return static_cast<unsigned char>(c) <= ' ';
}
bool IsLineEnd(char c) {
    return c == '\r' || c == '\n';
}
constexpr bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}
constexpr bool IsHex(char c) {
    return IsDigit(c) || (c >= 'A' && c <= 'F') || (c >= 'a' && c <= 'f');
}
bool IsWordStart(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' ||
           static_cast<unsigned char>(c) >= 128;
}
bool IsWordPart(char c) {
    return IsWordStart(c) || IsDigit(c) || c == '.';
}

// 1 for a hexadecimal digit, 0 for a blank, 2 for anything else.
constexpr auto DigitClass = [] {
    std::array<unsigned char, 256> classes{};
    for (int c = 0; c < 256; ++c)
        classes[static_cast<std::size_t>(c)] = IsHex(static_cast<char>(c)) ? 1 : c <= ' ' ? 0 : 2;
    return classes;
}();

std::optional<FormNodeKind> NodeKeyword(std::string_view word) {
    if (SameText(word, "object")) return FormNodeKind::Object;
    if (SameText(word, "inherited")) return FormNodeKind::Inherited;
    if (SameText(word, "inline")) return FormNodeKind::Inline;
    return {};
}

class TextReader {
public:
    TextReader(std::string_view text, const FormShape& shape) : text_(text), shape_(shape), literal_(shape) {}

    std::unique_ptr<FormNode> File(std::string& before, std::string& after) {
        SkipByteOrderMark();
        Skip();
        // Blank lines before the root are kept apart, its indentation is its own.
        std::size_t line = pos_;
        while (line > 0 && (text_[line - 1] == ' ' || text_[line - 1] == '\t'))
            --line;
        before = text_.substr(0, line);
        pieceStart_ = line;
        std::unique_ptr<FormNode> root = Node(0);
        Skip();
        if (pos_ < text_.size()) Fail("text behind the end of the form");
        after = text_.substr(pieceStart_);
        return root;
    }

    FormHead Head() {
        Skip();
        const std::optional<FormNodeKind> kind = NodeKeyword(PeekWord());
        if (!kind) Fail(pos_ == text_.size() ? "the file holds no form" : "'object' expected");
        Word();
        FormHead head;
        head.kind = *kind;
        head.className = Word();
        if (Accept(':')) head.name = std::exchange(head.className, std::string(Word()));
        if (Accept('[')) {
            const FormValue index = Number();
            if (index.kind != FormValueKind::Integer || index.integer < INT32_MIN ||
                index.integer > INT32_MAX)
                Fail("bad child order");
            head.index = static_cast<int>(index.integer);
            Expect(']');
        }
        return head;
    }

    void SkipByteOrderMark() {
        if (text_.starts_with("\xEF\xBB\xBF")) pos_ = 3;
    }

private:
    std::unique_ptr<FormNode> Node(int depth) {
        if (depth > MaxFormDepth) Fail("objects are nested too deeply");
        std::unique_ptr<FormNode> node = NodeOf(Head());
        node->rawHead = Piece();
        for (std::string_view word = PeekWord(); !NodeKeyword(word) && !SameText(word, "end");
             word = PeekWord()) {
            FormProperty& property = node->properties.emplace_back();
            Property(property, depth);
            property.raw = Piece();
        }
        while (NodeKeyword(PeekWord()))
            node->children.push_back(Node(depth + 1));
        ExpectWord("end");
        node->rawTail = Piece();
        return node;
    }

    void Property(FormProperty& property, int depth) {
        property.name = Word();
        Expect('=');
        Value(property.value, depth);
    }

    void Value(FormValue& value, int depth) {
        if (depth > MaxFormDepth) Fail("values are nested too deeply");
        Skip();
        if (pos_ == text_.size()) Fail("the file ends in a value");
        const char c = text_[pos_];
        if (c == '\'' || c == '#')
            String(value);
        else if (IsDigit(c) || c == '-' || c == '+' || c == '$')
            value = Number();
        else if (c == '[')
            Set(value);
        else if (c == '(')
            List(value, depth);
        else if (c == '{')
            Binary(value);
        else if (c == '<')
            Collection(value, depth);
        else
            Named(value);
    }

    void Named(FormValue& value) {
        const std::string_view word = Word();
        value.kind = SameText(word, "True")    ? FormValueKind::True
                     : SameText(word, "False") ? FormValueKind::False
                     : SameText(word, "nil")   ? FormValueKind::Nil
                                               : FormValueKind::Identifier;
        if (value.kind == FormValueKind::Identifier) value.text = word;
    }

    void String(FormValue& value) {
        value.kind = FormValueKind::String;
        for (;;) {
            StringPiece();
            if (!Accept('+')) break;
            Skip();
            if (pos_ == text_.size() || (text_[pos_] != '\'' && text_[pos_] != '#'))
                Fail("string expected behind '+'");
        }
        value.text = literal_.Take();
    }

    // Quoted parts and codes that stand next to each other.
    void StringPiece() {
        while (pos_ < text_.size() && (text_[pos_] == '\'' || text_[pos_] == '#')) {
            if (text_[pos_++] == '#') {
                Code();
                continue;
            }
            for (bool open = true; open;) {
                std::size_t end = pos_;
                while (end < text_.size() && text_[end] != '\'' && !IsLineEnd(text_[end]))
                    ++end;
                if (end == text_.size() || text_[end] != '\'') Fail("a string has no closing quote");
                open = end + 1 < text_.size() && text_[end + 1] == '\'';
                literal_.Quoted(text_.substr(pos_, end - pos_ + (open ? 1 : 0)));
                pos_ = end + (open ? 2 : 1);
            }
        }
    }

    void Code() {
        const std::size_t start = pos_;
        std::uint32_t code = 0;
        for (; pos_ < text_.size() && IsDigit(text_[pos_]) && code <= MaxCode; ++pos_)
            code = code * 10 + static_cast<std::uint32_t>(text_[pos_] - '0');
        if (pos_ == start || code > MaxCode) Fail("bad character code");
        literal_.Code(code);
    }

    FormValue Number() {
        Skip();
        const std::size_t start = pos_;
        if (pos_ < text_.size() && (text_[pos_] == '-' || text_[pos_] == '+')) ++pos_;
        FormValue value;
        value.kind = FormValueKind::Integer;
        if (pos_ < text_.size() && text_[pos_] == '$') {
            const std::size_t digits = ++pos_;
            while (pos_ < text_.size() && IsHex(text_[pos_]))
                ++pos_;
            value.integer = Hex(digits, text_[start] == '-');
            return value;
        }
        bool whole = true;
        while (pos_ < text_.size()) {
            const char c = text_[pos_];
            const bool sign = (c == '-' || c == '+') && (text_[pos_ - 1] == 'e' || text_[pos_ - 1] == 'E');
            if (c == '.' || c == 'e' || c == 'E' || sign)
                whole = false;
            else if (!IsDigit(c))
                break;
            ++pos_;
        }
        const char suffix = pos_ < text_.size() ? static_cast<char>(text_[pos_] | 0x20) : ' ';
        const bool typed = suffix == 's' || suffix == 'c' || suffix == 'd';
        if (typed) ++pos_;
        const std::string_view digits = text_.substr(start, pos_ - start);
        if (!std::any_of(digits.begin(), digits.end(), IsDigit)) Fail("bad number");
        if (whole && !typed && Integer(digits, value.integer)) return value;
        value.kind = suffix == 'c' && typed   ? FormValueKind::Currency
                     : suffix == 'd' && typed ? FormValueKind::Date
                                              : FormValueKind::Float;
        value.text = digits;
        return value;
    }

    static bool Integer(std::string_view digits, std::int64_t& result) {
        if (digits.front() == '+') digits.remove_prefix(1);
        const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), result);
        return error == std::errc() && end == digits.data() + digits.size();
    }

    std::int64_t Hex(std::size_t start, bool negative) {
        std::uint64_t bits = 0;
        const auto [end, error] = std::from_chars(text_.data() + start, text_.data() + pos_, bits, 16);
        if (error != std::errc() || end == text_.data() + start) Fail("bad number");
        return static_cast<std::int64_t>(negative ? 0 - bits : bits);
    }

    void Set(FormValue& value) {
        value.kind = FormValueKind::Set;
        Expect('[');
        if (Accept(']')) return;
        do {
            Skip();
            FormValue& item = value.items.emplace_back();
            if (pos_ < text_.size() && IsWordStart(text_[pos_]))
                item = FormValue::Identifier(std::string(Word()));
            else
                item = Number();
        } while (Accept(','));
        Expect(']');
    }

    void List(FormValue& value, int depth) {
        value.kind = FormValueKind::List;
        Expect('(');
        while (!Accept(')'))
            Value(value.items.emplace_back(), depth + 1);
    }

    // Four fifths of all bytes of forms are such digits: they are counted, not decoded.
    void Binary(FormValue& value) {
        value.kind = FormValueKind::Binary;
        Expect('{');
        const std::string_view data = text_.substr(pos_, text_.find('}', pos_) - pos_);
        std::size_t digits = 0;
        unsigned char classes = 0;
        for (char c : data) {
            const unsigned char digit = DigitClass[static_cast<unsigned char>(c)];
            digits += digit & 1;
            classes |= digit;
        }
        if (classes & 2) {
            while (DigitClass[static_cast<unsigned char>(text_[pos_])] != 2)
                ++pos_;
            Fail("binary data holds something else than hexadecimal digits");
        }
        pos_ += data.size();
        if (digits % 2) Fail("binary data ends in half a byte");
        value.text = data;
        Expect('}');
    }

    void Collection(FormValue& value, int depth) {
        value.kind = FormValueKind::Collection;
        Expect('<');
        while (!Accept('>')) {
            ExpectWord("item");
            FormItem& item = value.collection.emplace_back();
            if (Accept('[')) {
                item.index = Number().integer;
                Expect(']');
            }
            while (!SameText(PeekWord(), "end"))
                Property(item.properties.emplace_back(), depth + 1);
            ExpectWord("end");
        }
    }

    // Tokens

    void Skip() {
        while (pos_ < text_.size() && IsBlank(text_[pos_]))
            ++pos_;
    }

    // Stays where it is when something else comes, so that a piece ends on its own line.
    bool Accept(char c) {
        const std::size_t start = pos_;
        Skip();
        if (pos_ < text_.size() && text_[pos_] == c) {
            ++pos_;
            return true;
        }
        pos_ = start;
        return false;
    }

    void Expect(char c) {
        if (Accept(c)) return;
        Skip();
        Fail(std::string("'") + c + "' expected");
    }

    std::string_view PeekWord() {
        Skip();
        std::size_t end = pos_;
        if (end < text_.size() && IsWordStart(text_[end]))
            while (end < text_.size() && IsWordPart(text_[end]))
                ++end;
        return text_.substr(pos_, end - pos_);
    }

    std::string_view Word() {
        const std::string_view word = PeekWord();
        if (word.empty()) Fail(pos_ == text_.size() ? "the file ends too early" : "name expected");
        pos_ += word.size();
        return word;
    }

    void ExpectWord(std::string_view word) {
        if (!SameText(PeekWord(), word)) Fail("'" + std::string(word) + "' expected");
        Word();
    }

    std::string Piece() {
        std::size_t end = pos_;
        while (end < text_.size() && IsBlank(text_[end]) && !IsLineEnd(text_[end]))
            ++end;
        if (end == text_.size() || IsLineEnd(text_[end])) {
            if (text_.substr(end, 2) == "\r\n")
                end += 2;
            else if (end < text_.size())
                ++end;
            pos_ = end;
        }
        const std::size_t start = std::exchange(pieceStart_, pos_);
        return std::string(text_.substr(start, pos_ - start));
    }

    [[noreturn]] void Fail(const std::string& reason) const {
        const auto line =
            1 + std::count(text_.begin(), text_.begin() + static_cast<std::ptrdiff_t>(pos_), '\n');
        throw Error(shape_.fileName + ": line " + std::to_string(line) + ": " + reason);
    }

    std::string_view text_;
    const FormShape& shape_;
    LiteralReader literal_;
    std::size_t pos_ = 0;
    std::size_t pieceStart_ = 0;
};

} // namespace

std::unique_ptr<FormNode> ReadFormText(std::string_view bytes, FormShape& shape) {
    DetectLiterals(bytes, shape);
    const std::size_t lineFeed = bytes.find('\n');
    if (lineFeed != std::string_view::npos && (lineFeed == 0 || bytes[lineFeed - 1] != '\r'))
        shape.lineEnd = "\n";
    return TextReader(bytes, shape).File(shape.before, shape.after);
}

FormHead ReadFormTextHead(std::string_view bytes, const FormShape& shape) {
    TextReader reader(bytes, shape);
    reader.SkipByteOrderMark();
    return reader.Head();
}

} // namespace glotta
