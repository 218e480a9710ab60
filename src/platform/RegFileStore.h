// A registry store in one text file.
#pragma once
#include "platform/Encoding.h"
#include "platform/RegistryStore.h"
#include "platform/SectionedText.h"

namespace glotta {

// The file is read at the first use and again before every change, which is made under a lock and written
// atomically: of two programs that change it at once neither loses the other's values. A file that does not
// parse is an Error and stays as it is. A new file is UTF-8; an exported one in UTF-16 stays so.
class RegFileStore : public RegistryStore {
public:
    explicit RegFileStore(std::filesystem::path file) : file_(std::move(file)) {}

    std::optional<std::string> ReadString(std::string_view key, std::string_view name) override;
    void WriteString(std::string_view key, std::string_view name, std::string_view value) override;
    void DeleteValue(std::string_view key, std::string_view name) override;
    bool KeyExists(std::string_view key) override;
    void CreateKey(std::string_view key) override;
    std::vector<std::string> ValueNames(std::string_view key) override;

private:
    struct Content {
        SectionedText text{SectionedText::Repeated::LastCounts};
        Encoding encoding;
        std::string lineEnd = "\r\n";
        bool HasKey(std::string_view key) const; // also one that only has subkeys
        void AddKey(std::string_view key);
    };
    Content Load() const;
    Content& Loaded();
    // Nothing is written when `change` leaves the text as it was.
    template <class Change> void ChangeFile(Change change);

    std::filesystem::path file_;
    std::optional<Content> content_;
};

} // namespace glotta
