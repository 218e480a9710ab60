#include "platform/IniFile.h"

#include "platform/Error.h"
#include "platform/IntText.h"
#include "platform/LineSpans.h"

namespace glotta {
namespace {

std::string ReadIfThere(const std::filesystem::path& file) {
    std::error_code failed;
    return std::filesystem::exists(file, failed) ? ReadFile(file) : std::string();
}

bool IsComment(std::string_view line) {
    return line.empty() || line[0] == ';' || line[0] == '#';
}

void CheckWritable(const std::filesystem::path& file, std::string_view section, std::string_view key,
                   std::string_view value) {
    const auto fail = [&](std::string_view what) {
        throw Error(PathText(file) + ": [" + std::string(section) + "] " + std::string(key) + ": " +
                    std::string(what));
    };
    for (const std::string_view text : {section, key, value})
        if (text.find_first_of("\r\n") != std::string_view::npos)
            fail("an INI file cannot hold a line break");
    if (section.find(']') != std::string_view::npos) fail("a section name cannot hold \"]\"");
    if (Trim(key).empty() || IsComment(Trim(key)) || Trim(key)[0] == '[' ||
        key.find('=') != std::string_view::npos)
        fail("this is no possible key");
}

} // namespace

TgxMemIniFile::TgxMemIniFile(std::filesystem::path file, std::optional<Encoding> hint)
    : TgxMemIniFile(file, ReadIfThere(file), hint) {}

TgxMemIniFile::TgxMemIniFile(std::filesystem::path file, std::string_view bytes, std::optional<Encoding> hint)
    : file_(std::move(file)), encoding_(DetectEncoding(bytes, {}, hint)) {
    Parse(Decode(bytes, encoding_));
}

void TgxMemIniFile::Parse(std::string_view text) {
    bool first = true;
    for (std::size_t pos = 0; pos < text.size();) {
        const LineSpan span = LineAt(text, pos);
        const std::string raw(text.substr(pos, span.next - pos));
        if (std::exchange(first, false) && span.next > span.end)
            lineEnd_ = text.substr(span.end, span.next - span.end);
        const std::string_view line = Trim(text.substr(pos, span.end - pos));
        const std::size_t equals = line.find('=');
        if (IsComment(line))
            text_.AddOther(raw);
        else if (line.front() == '[' && line.back() == ']')
            text_.BeginSection(Trim(line.substr(1, line.size() - 2)), raw);
        else if (equals == std::string_view::npos || Trim(line.substr(0, equals)).empty())
            text_.AddOther(raw);
        else
            text_.AddEntry(Trim(line.substr(0, equals)), raw, std::string(Trim(line.substr(equals + 1))));
        pos = span.next;
    }
}

std::string TgxMemIniFile::ReadString(std::string_view section, std::string_view key,
                                      std::string_view missing) const {
    return text_.Value(section, key).value_or(std::string(missing));
}

int TgxMemIniFile::ReadInteger(std::string_view section, std::string_view key, int missing) const {
    return StrToInt(ReadString(section, key, "")).value_or(missing);
}

bool TgxMemIniFile::ReadBool(std::string_view section, std::string_view key, bool missing) const {
    return ReadInteger(section, key, missing) != 0;
}

bool TgxMemIniFile::ValueExists(std::string_view section, std::string_view key) const {
    return text_.HasEntry(section, key);
}

void TgxMemIniFile::WriteString(std::string_view section, std::string_view key, std::string_view value) {
    section = Trim(section);
    CheckWritable(file_, section, key, value);
    key = Trim(key);
    value = Trim(value);
    if (text_.Value(section, key) == value) return;
    if (!text_.HasSection(section)) text_.AddSection(section, lineEnd_);
    // Spelling and blanks in front of the value are the file's.
    const std::string_view old = text_.Raw(section, key);
    std::string raw(old.substr(0, old.find('=') + 1));
    if (raw.empty())
        raw = std::string(key) + "=";
    else
        raw += old.substr(raw.size(), old.find_first_not_of(" \t", raw.size()) - raw.size());
    const std::size_t end = std::min(old.find_first_of("\r\n"), old.size());
    raw.append(value).append(old.empty() ? std::string_view(lineEnd_) : old.substr(end));
    text_.Put(section, key, std::move(raw), std::string(value), lineEnd_);
}

void TgxMemIniFile::WriteInteger(std::string_view section, std::string_view key, int value) {
    WriteString(section, key, std::to_string(value));
}

void TgxMemIniFile::WriteBool(std::string_view section, std::string_view key, bool value) {
    WriteString(section, key, value ? "1" : "0");
}

void TgxMemIniFile::DeleteKey(std::string_view section, std::string_view key) {
    text_.Erase(section, key);
}
void TgxMemIniFile::EraseSection(std::string_view section) {
    text_.EraseSection(section);
}

std::string TgxMemIniFile::ToBytes() {
    const std::string text = text_.ToText();
    EncodeResult encoded = Encode(text, encoding_);
    if (encoded.unencodable) {
        encoding_ = {EncodingKind::Utf8, Encoding().codePage, true};
        encoded = Encode(text, encoding_);
    }
    if (encoded.unencodable)
        throw Error(PathText(file_) + ": a character cannot be written in " + encoding_.Name());
    return std::move(encoded.bytes);
}

} // namespace glotta
