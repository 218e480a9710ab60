#include "platform/RegText.h"

#include "platform/Encoding.h"
#include "platform/Error.h"
#include "platform/LineSpans.h"
#include "platform/Utf16.h"

namespace glotta {
namespace {

using Byte = unsigned char;

int HexDigit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    const char lower = static_cast<char>(c | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

class RegReader {
public:
    RegReader(std::string_view text, const std::string& file) : text_(text), file_(file) {}

    SectionedText Read() {
        ReadHead();
        while (pos_ < text_.size()) {
            begin_ = pos_;
            line_ += countedLines_;
            countedLines_ = 0;
            SkipBlanks();
            if (AtLineEnd() || Peek() == ';')
                result_.AddOther(TakeLine());
            else if (Peek() == '[')
                ReadKey();
            else
                ReadValue();
        }
        return std::move(result_);
    }

private:
    [[noreturn]] void FailAt(int line, std::string_view reason) const {
        throw Error(file_ + ": line " + std::to_string(line) + ": " + std::string(reason));
    }
    [[noreturn]] void Fail(std::string_view reason) const { FailAt(line_ + countedLines_, reason); }

    char Peek() const { return pos_ < text_.size() ? text_[pos_] : '\0'; }
    bool AtLineEnd() const { return pos_ >= text_.size() || text_[pos_] == '\r' || text_[pos_] == '\n'; }
    void SkipBlanks() {
        while (Peek() == ' ' || Peek() == '\t')
            ++pos_;
    }
    void SkipLine() {
        pos_ = LineAt(text_, pos_).next;
        ++countedLines_;
    }
    // The piece from its beginning to the end of the present line.
    std::string TakeLine() {
        SkipLine();
        return std::string(text_.substr(begin_, pos_ - begin_));
    }
    bool Take(std::string_view word) {
        if (text_.substr(pos_, word.size()) != word) return false;
        pos_ += word.size();
        return true;
    }
    void RequireLineEnd(int line) {
        SkipBlanks();
        if (!AtLineEnd() && Peek() != ';') FailAt(line, "unexpected text behind the value");
    }

    void ReadHead() {
        constexpr std::string_view Head = "Windows Registry Editor Version 5.00";
        while (pos_ < text_.size()) {
            begin_ = pos_;
            const std::string_view line = Trim(text_.substr(pos_, LineAt(text_, pos_).end - pos_));
            if (line == Head) {
                result_.AddOther(TakeLine());
                return;
            }
            if (!line.empty()) Fail("\"" + std::string(Head) + "\" expected");
            result_.AddOther(TakeLine());
            line_ += std::exchange(countedLines_, 0);
        }
    }

    void ReadKey() {
        const std::string_view line = TrimRight(text_.substr(pos_, LineAt(text_, pos_).end - pos_));
        const std::size_t close = line.rfind(']');
        if (close == std::string_view::npos) Fail("\"]\" expected");
        const std::string_view rest = TrimLeft(line.substr(close + 1));
        if (!rest.empty() && rest.front() != ';') Fail("unexpected text behind the key");
        const std::string name(line.substr(1, close - 1));
        if (name.empty()) Fail("a key without a name");
        inKey_ = true;
        result_.BeginSection(name, TakeLine());
    }

    void ReadValue() {
        if (!inKey_) Fail("a value before the first key");
        std::string name;
        if (Peek() == '"')
            name = ReadQuoted(false);
        else if (!Take("@"))
            Fail("a key, a value or a comment expected");
        SkipBlanks();
        if (!Take("=")) Fail("\"=\" expected");
        SkipBlanks();
        std::optional<std::string> value;
        const bool quoted = Peek() == '"';
        if (quoted)
            value = ReadQuoted(true);
        else if (Take("dword:"))
            ReadDword();
        else if (Take("hex"))
            value = ReadHex();
        else if (!Take("-"))
            Fail("this kind of value is unknown");
        // A quote that is not closed swallows the next lines up to theirs: the fault lies where the value
        // begins.
        RequireLineEnd(quoted ? line_ : line_ + countedLines_);
        result_.AddEntry(name, TakeLine(), std::move(value));
    }

    // The registry editor writes line breaks in a text as they are.
    std::string ReadQuoted(bool mayBreak) {
        std::string value;
        for (++pos_; pos_ < text_.size() && text_[pos_] != '"'; ++pos_) {
            if (AtLineEnd()) {
                if (!mayBreak) break;
                countedLines_ += text_[pos_] == '\n' || text_.substr(pos_, 2) != "\r\n";
            } else if (text_[pos_] == '\\' && ++pos_ == text_.size()) {
                break;
            }
            value += text_[pos_];
        }
        if (!Take("\"")) FailAt(line_, "a quote is not closed");
        return value;
    }

    void ReadDword() {
        int digits = 0;
        for (; HexDigit(Peek()) >= 0; ++pos_)
            ++digits;
        if (digits < 1 || digits > 8) Fail("a number has one to eight hexadecimal digits");
    }

    // "hex:" and "hex(kind):"; the text of the kinds that are one.
    std::optional<std::string> ReadHex() {
        std::string kind = "3";
        if (Take("(")) {
            kind.clear();
            for (; HexDigit(Peek()) >= 0; ++pos_)
                kind += text_[pos_];
            if (kind.empty() || !Take(")")) Fail("\"hex(kind):\" expected");
        }
        if (!Take(":")) Fail("\":\" expected behind hex");
        const std::string bytes = ReadBytes();
        if (kind != "1" && kind != "2") return {};
        if (bytes.size() % 2) Fail("a text has an even number of bytes");
        std::u16string units;
        for (std::size_t i = 0; i < bytes.size(); i += 2)
            units += static_cast<char16_t>(Byte(bytes[i]) + Byte(bytes[i + 1]) * 256);
        std::string value = FromUtf16(units);
        if (value.ends_with('\0')) value.pop_back();
        return value;
    }

    std::string ReadBytes() {
        std::string bytes;
        for (;;) {
            SkipContinuation();
            if (bytes.empty() && (AtLineEnd() || Peek() == ';')) return bytes;
            const int high = HexDigit(Peek());
            if (high < 0) Fail("a hexadecimal byte expected");
            ++pos_;
            int byte = high;
            if (const int low = HexDigit(Peek()); low >= 0) {
                byte = high * 16 + low;
                ++pos_;
            }
            bytes += static_cast<char>(byte);
            SkipContinuation();
            if (!Take(",")) return bytes;
        }
    }

    void SkipContinuation() {
        SkipBlanks();
        while (Take("\\")) {
            SkipBlanks();
            if (!AtLineEnd()) Fail("unexpected text behind \"\\\"");
            if (pos_ >= text_.size()) Fail("the value is cut off");
            SkipLine();
            SkipBlanks();
        }
    }

    std::string_view text_;
    const std::string& file_;
    SectionedText result_{SectionedText::Repeated::LastCounts};
    std::size_t pos_ = 0, begin_ = 0;
    int line_ = 1, countedLines_ = 0; // of the piece being read, and how many it has taken so far
    bool inKey_ = false;
};

std::string Quoted(std::string_view text) {
    std::string quoted = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\') quoted += '\\';
        quoted += c;
    }
    return quoted + '"';
}

std::string HexText(std::string_view head, std::string_view value, std::string_view lineEnd) {
    constexpr std::size_t Width = 76;
    constexpr char Digits[] = "0123456789abcdef";
    std::string result(head);
    result += "hex(1):";
    std::size_t column = result.size();
    const std::u16string units = ToUtf16(value) + u'\0';
    for (std::size_t i = 0; i < units.size() * 2; ++i) {
        const unsigned byte = i % 2 ? units[i / 2] >> 8 : units[i / 2] & 0xFF;
        result += {Digits[byte >> 4], Digits[byte & 15]};
        column += 3;
        if (i + 1 == units.size() * 2) break;
        result += ',';
        if (column > Width) {
            result.append("\\").append(lineEnd).append("  ");
            column = 2;
        }
    }
    return result.append(lineEnd);
}

} // namespace

SectionedText ParseRegText(std::string_view text, const std::string& file) {
    return RegReader(text, file).Read();
}

std::string RegEntry(std::string_view name, std::string_view value, std::string_view lineEnd) {
    const std::string head = (name.empty() ? "@" : Quoted(name)) + "=";
    const auto isControl = [](char c) { return Byte(c) < ' ' || c == '\x7F'; };
    const bool plain = std::none_of(value.begin(), value.end(), isControl) && !HasRawCharacters(value);
    return plain ? head + Quoted(value) + std::string(lineEnd) : HexText(head, value, lineEnd);
}

} // namespace glotta
