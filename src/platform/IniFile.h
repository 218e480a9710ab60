// An INI file in memory.
#pragma once
#include "platform/Encoding.h"
#include "platform/Files.h"
#include "platform/SectionedText.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace glotta {

// Comments, order, unknown lines, line ends and encoding of the file are kept. Sections and keys match
// without regard to letter case; an existing key keeps its spelling. Blanks around values are not part of
// them.
class TgxMemIniFile {
public:
    // Reads the file; a missing one is empty. `hint` is the encoding of bytes that do not tell it themselves.
    explicit TgxMemIniFile(std::filesystem::path file, std::optional<Encoding> hint = {});
    // From the bytes given; the file is not read.
    TgxMemIniFile(std::filesystem::path file, std::string_view bytes, std::optional<Encoding> hint = {});

    const std::filesystem::path& FileName() const { return file_; }

    std::string ReadString(std::string_view section, std::string_view key, std::string_view missing) const;
    // `missing` also for a text that is no number.
    int ReadInteger(std::string_view section, std::string_view key, int missing) const;
    bool ReadBool(std::string_view section, std::string_view key, bool missing) const;
    bool ValueExists(std::string_view section, std::string_view key) const;

    // An Error for what an INI file cannot hold: line breaks, a key with "=", a section with "]".
    void WriteString(std::string_view section, std::string_view key, std::string_view value);
    void WriteInteger(std::string_view section, std::string_view key, int value);
    void WriteBool(std::string_view section, std::string_view key, bool value); // "1" or "0"
    void DeleteKey(std::string_view section, std::string_view key);
    void EraseSection(std::string_view section);

    std::vector<std::string> Sections() const { return text_.SectionNames(); }
    std::vector<std::string> Keys(std::string_view section) const { return text_.EntryNames(section); }

    // The file's new content. Characters that its encoding lacks make it UTF-8 with a byte order mark.
    std::string ToBytes();
    // Writes the file atomically.
    void UpdateFile() { WriteFileAtomically(file_, ToBytes()); }

private:
    void Parse(std::string_view text);

    std::filesystem::path file_;
    Encoding encoding_;
    std::string lineEnd_ = "\r\n";
    SectionedText text_{SectionedText::Repeated::FirstCounts};
};

} // namespace glotta
