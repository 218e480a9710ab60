// Encodings of units and forms on disk. Decoding and encoding are exact inverses for every byte sequence: bytes
// that are invalid in the encoding, or that it would write differently, become private-use characters of plane 16
// (see Encoding.cpp) and come back as they were.
#pragma once
#include <optional>
#include <string>
#include <string_view>

namespace glotta {

enum class EncodingKind : unsigned char { CodePage, Utf8, Utf16LE, Utf16BE };

struct Encoding {
    EncodingKind kind = EncodingKind::CodePage;
    unsigned codePage = 1252; // for CodePage: Windows-125x, 437, 850, 852, 866, 874, 932, 936, 949, 950, KOI8-R ...
    bool bom = false;         // the file starts with the encoding's byte order mark

    bool operator==(const Encoding&) const = default;
    // "windows-1252", "utf-8", "utf-8-bom", "utf-16le"; for messages and reports.
    std::string Name() const;
};

// "windows-1251", "cp1251", "1251", "utf-8", "utf-8-bom", "utf-16le", "utf-16be", "latin1", ... without regard to case.
std::optional<Encoding> EncodingByName(std::string_view name);

// A byte order mark decides; then `told` (an explicit wish); then valid UTF-8 with at least one multi-byte
// character; then `hint` (the project's code page); then Windows-1252.
Encoding DetectEncoding(std::string_view bytes, std::optional<Encoding> told = {}, std::optional<Encoding> hint = {});

// The UTF-8 text of the bytes, without the byte order mark.
std::string Decode(std::string_view bytes, const Encoding& encoding);

struct EncodeResult {
    std::string bytes;
    // The first character that the encoding cannot express; bytes is then incomplete.
    std::optional<char32_t> unencodable;
};
EncodeResult Encode(std::string_view text, const Encoding& encoding);
// The text with such characters for its malformed bytes.
std::string WellFormed(std::string text);
// The text holds characters that stand for bytes which are none in the encoding it came from.
bool HasRawCharacters(std::string_view text);
bool CanEncode(std::string_view text, const Encoding& encoding);

} // namespace glotta
