#include "storage/DictionaryLanguages.h"

#include "platform/Encoding.h"
#include "platform/Error.h"
#include "platform/Files.h"
#include "platform/Text.h"
#include "platform/Utf16.h"

namespace glotta {
namespace {

class BinaryReader {
public:
    BinaryReader(const std::filesystem::path& file, std::string_view bytes) : file_(file), bytes_(bytes) {}

    bool Empty() const { return bytes_.empty(); }
    void Restart() { pos_ = 0; }
    std::string_view Take(std::size_t count) {
        if (bytes_.size() - pos_ < count)
            throw Error(PathText(file_) + ": byte " + std::to_string(pos_) +
                        ": the dictionary ends too early");
        pos_ += count;
        return bytes_.substr(pos_ - count, count);
    }
    std::uint32_t Word() {
        const std::string_view bytes = Take(4);
        std::uint32_t word = 0;
        for (std::size_t i = 4; i-- > 0;)
            word = word << 8 | static_cast<unsigned char>(bytes[i]);
        return word;
    }

private:
    const std::filesystem::path& file_;
    std::string_view bytes_;
    std::size_t pos_ = 0;
};

std::string FromUtf16Bytes(std::string_view bytes) {
    std::u16string units;
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2)
        units += static_cast<char16_t>(static_cast<unsigned char>(bytes[i]) |
                                       static_cast<unsigned char>(bytes[i + 1]) << 8);
    return FromUtf16(units);
}

} // namespace

std::vector<std::string> ReadDicLanguages(const std::filesystem::path& file) {
    return ParseDicLanguages(file, ReadFile(file));
}

std::vector<std::string> ReadDixLanguages(const std::filesystem::path& file) {
    std::error_code failed;
    if (!std::filesystem::exists(file, failed)) return {};
    return ParseDixLanguages(ReadFile(file));
}

std::vector<std::string> ParseDicLanguages(const std::filesystem::path& file, std::string_view bytes) {
    std::vector<std::string> names;
    BinaryReader reader(file, bytes);
    if (reader.Empty()) return names;
    if (reader.Word() == 0) {
        reader.Word();
        reader.Take(8);
    } else {
        reader.Restart();
    }
    reader.Word();
    for (std::uint32_t left = reader.Word(); left > 0; --left)
        names.push_back(FromUtf16Bytes(reader.Take(reader.Word())));
    return names;
}

std::vector<std::string> ParseDixLanguages(std::string_view bytes) {
    constexpr std::string_view Open = "<LANGUAGE>", Close = "</LANGUAGE>";
    std::vector<std::string> names;
    const std::vector<std::string> lines = SplitLines(Decode(bytes, DetectEncoding(bytes)));
    auto line = std::find(lines.begin(), lines.end(), "<HEAD>");
    for (; line != lines.end() && *line != "</HEAD>"; ++line) {
        if (!line->starts_with(Open)) continue;
        // The length is the closing tag's place in the whole line, so that the name keeps its closing tag.
        const std::size_t close = line->find(Close);
        const std::size_t length = close == std::string::npos ? 0 : CharCount(line->substr(0, close)) + 1;
        names.emplace_back(CharPrefix(std::string_view(*line).substr(Open.size()), length));
    }
    return names;
}

} // namespace glotta
