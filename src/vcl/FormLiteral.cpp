#include "vcl/FormLiteral.h"

#include "platform/Error.h"
#include "platform/Text.h"

namespace glotta {

namespace {

constexpr std::size_t PieceLength = 64;
constexpr std::uint32_t Replacement = 0xFFFD;

Encoding TextEncoding(const FormShape& shape) {
    return {shape.utf8 ? EncodingKind::Utf8 : EncodingKind::CodePage, shape.codePage, false};
}

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

// The codes as they are written: bytes of the code page or UTF-16 units.
std::vector<std::uint16_t> CodesOf(std::string_view text, const FormShape& shape) {
    std::vector<std::uint16_t> codes;
    codes.reserve(text.size());
    if (!shape.units) {
        const EncodeResult encoded = Encode(text, TextEncoding(shape));
        if (encoded.unencodable)
            throw Error(shape.fileName + ": the form's code page cannot express \"" + std::string(text) +
                        "\"");
        for (char c : encoded.bytes)
            codes.push_back(static_cast<unsigned char>(c));
        return codes;
    }
    for (std::size_t pos = 0; pos < text.size();) {
        const char32_t c = NextChar(text, pos);
        if (c < 0x10000) {
            codes.push_back(static_cast<std::uint16_t>(c));
        } else {
            codes.push_back(static_cast<std::uint16_t>(0xD7C0 + (c >> 10)));
            codes.push_back(static_cast<std::uint16_t>(0xDC00 + (c & 0x3FF)));
        }
    }
    return codes;
}

// A string in quotes ends on its line, so the line's earlier quotes decide.
bool IsQuoted(std::string_view bytes, std::size_t at) {
    bool quoted = false;
    while (at > 0 && bytes[at - 1] != '\n' && bytes[at - 1] != '\r')
        quoted ^= bytes[--at] == '\'';
    return quoted;
}

bool IsPlain(std::uint16_t code) {
    return code >= ' ' && code <= 127 && code != '\'';
}

} // namespace

bool HasCodes(std::string_view bytes, std::uint32_t least, std::uint32_t most) {
    for (std::size_t at = 0; (at = bytes.find('#', at)) != std::string_view::npos;) {
        const std::size_t sign = at++;
        std::uint32_t code = 0;
        for (; at < bytes.size() && IsDigit(bytes[at]) && code <= MaxCode; ++at)
            code = code * 10 + static_cast<std::uint32_t>(bytes[at] - '0');
        if (code >= least && code <= most && !IsQuoted(bytes, sign)) return true;
    }
    return false;
}

void DetectLiterals(std::string_view bytes, FormShape& shape) {
    shape.utf8 = !IsAscii(bytes) && DetectEncoding(bytes).kind == EncodingKind::Utf8;
    shape.units = shape.utf8 || HasCodes(bytes, 256, MaxCode);
}

void LiteralReader::Quoted(std::string_view bytes) {
    FlushHigh();
    if (shape_.units && !IsAscii(bytes))
        text_ += Decode(bytes, TextEncoding(shape_));
    else
        text_ += bytes;
}

void LiteralReader::Code(std::uint32_t code) {
    if (shape_.units)
        Unit(code);
    else
        text_ += static_cast<char>(code);
}

void LiteralReader::Unit(std::uint32_t unit) {
    const bool low = unit >= 0xDC00 && unit < 0xE000;
    if (high_ && low) {
        AppendChar(text_, 0x10000 + ((high_ - 0xD800) << 10) + (unit - 0xDC00));
        high_ = 0;
        return;
    }
    FlushHigh();
    if (unit >= 0xD800 && unit < 0xDC00)
        high_ = unit;
    else
        AppendChar(text_, low ? Replacement : unit);
}

void LiteralReader::FlushHigh() {
    if (high_) AppendChar(text_, Replacement);
    high_ = 0;
}

std::string LiteralReader::Take() {
    FlushHigh();
    std::string text;
    if (shape_.units || IsAscii(text_))
        text.swap(text_);
    else
        text = Decode(text_, TextEncoding(shape_));
    text_.clear();
    return text;
}

void AppendLiteral(std::string& out, std::string_view text, const FormShape& shape,
                   const std::string& lineStart) {
    if (text.empty()) {
        out += "''";
        return;
    }
    const std::vector<std::uint16_t> codes = CodesOf(text, shape);
    if (codes.size() > PieceLength) out += lineStart;
    bool quoted = false;
    for (std::size_t i = 0; i < codes.size(); ++i) {
        if (i > 0 && i % PieceLength == 0) {
            if (std::exchange(quoted, false)) out += '\'';
            out += " +";
            out += lineStart;
        }
        if (IsPlain(codes[i]) != quoted) {
            out += '\'';
            quoted = !quoted;
        }
        if (quoted)
            out += static_cast<char>(codes[i]);
        else
            out += '#' + std::to_string(codes[i]);
    }
    if (quoted) out += '\'';
}

} // namespace glotta
