#include "platform/RegFileStore.h"

#include "platform/Error.h"
#include "platform/Files.h"
#include "platform/LineSpans.h"
#include "platform/RegText.h"

namespace glotta {
namespace fs = std::filesystem;
namespace {

std::string FullKey(std::string_view key) {
    while (key.starts_with('\\'))
        key.remove_prefix(1);
    while (key.ends_with('\\'))
        key.remove_suffix(1);
    if (key.find_first_of("\r\n]") != std::string_view::npos)
        throw Error("\"" + std::string(key) + "\" is no possible key");
    return "HKEY_CURRENT_USER\\" + std::string(key);
}

void CheckName(std::string_view name) {
    if (name.find_first_of("\r\n") != std::string_view::npos)
        throw Error("\"" + std::string(name) + "\" is no possible value name");
}

} // namespace

bool RegFileStore::Content::HasKey(std::string_view key) const {
    if (text.HasSection(key)) return true;
    const std::string parent = std::string(key) + "\\";
    const std::vector<std::string> keys = text.SectionNames();
    return std::any_of(keys.begin(), keys.end(),
                       [&](const auto& other) { return StartsWithText(other, parent); });
}

void RegFileStore::Content::AddKey(std::string_view key) {
    if (!text.HasSection(key)) text.AddSection(key, lineEnd);
}

RegFileStore::Content RegFileStore::Load() const {
    std::error_code failed;
    std::string bytes;
    if (fs::exists(file_, failed)) bytes = ReadFile(file_);
    Content content;
    content.encoding = DetectEncoding(bytes, Encoding{EncodingKind::Utf8});
    std::string text = Decode(bytes, content.encoding);
    if (const LineSpan first = LineAt(text, 0); first.next > first.end)
        content.lineEnd = text.substr(first.end, first.next - first.end);
    if (text.empty()) text = RegTextHead;
    content.text = ParseRegText(text, PathText(file_));
    return content;
}

RegFileStore::Content& RegFileStore::Loaded() {
    if (!content_) content_ = Load();
    return *content_;
}

template <class Change> void RegFileStore::ChangeFile(Change change) {
    if (const fs::path folder = file_.parent_path(); !folder.empty()) {
        std::error_code failed;
        fs::create_directories(folder, failed);
        if (failed) throw Error(PathText(folder) + ": " + failed.message());
    }
    const FileLock lock(file_);
    content_.reset();
    Content content = Load();
    const std::string before = content.text.ToText();
    change(content);
    const std::string after = content.text.ToText();
    if (after != before) {
        const EncodeResult encoded = Encode(after, content.encoding);
        if (encoded.unencodable)
            throw Error(PathText(file_) + ": a character cannot be written in " + content.encoding.Name());
        WriteFileAtomically(file_, encoded.bytes);
    }
    content_ = std::move(content);
}

std::optional<std::string> RegFileStore::ReadString(std::string_view key, std::string_view name) {
    return Loaded().text.Value(FullKey(key), name);
}

void RegFileStore::WriteString(std::string_view key, std::string_view name, std::string_view value) {
    CheckName(name);
    ChangeFile([&, full = FullKey(key)](Content& content) {
        content.AddKey(full);
        if (content.text.Value(full, name) == value) return;
        const std::string entry = RegEntry(content.text.Spelling(full, name), value, content.lineEnd);
        content.text.Put(full, name, entry, std::string(value), content.lineEnd);
    });
}

void RegFileStore::DeleteValue(std::string_view key, std::string_view name) {
    ChangeFile([&, full = FullKey(key)](Content& content) { content.text.Erase(full, name); });
}

bool RegFileStore::KeyExists(std::string_view key) {
    return Loaded().HasKey(FullKey(key));
}

void RegFileStore::CreateKey(std::string_view key) {
    ChangeFile([&, full = FullKey(key)](Content& content) {
        if (!content.HasKey(full)) content.AddKey(full);
    });
}

std::vector<std::string> RegFileStore::ValueNames(std::string_view key) {
    return Loaded().text.EntryNames(FullKey(key));
}

} // namespace glotta
