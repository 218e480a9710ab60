#include "platform/Files.h"

#include "platform/Text.h"

namespace glotta {
namespace fs = std::filesystem;
namespace {

// A path as a project file writes it: where it starts, and its parts.
struct WrittenPath {
    std::string root; // "", "/", "C:/", "//server/share/"; the last two are roots on Windows only
    std::vector<std::string> parts;
};

std::size_t RootLength(std::string_view text) {
#ifdef _WIN32
    if (text.starts_with("//")) {
        const std::size_t share = std::min(text.find('/', 2), text.size());
        return std::min(text.find('/', share + 1), text.size() - 1) + 1;
    }
#endif
    const std::size_t drive = text.size() > 1 && text[1] == ':' ? 2 : 0;
    return drive < text.size() && text[drive] == '/' ? drive + 1 : drive;
}

// Where a written path starts. A root without a drive is the folder's drive.
fs::path Start(const fs::path& folder, const WrittenPath& path) {
    if (path.root.empty()) return folder;
    return path.root == "/" ? folder.root_name().concat(path.root) : PathFromText(path.root);
}

WrittenPath Parse(std::string_view written) {
    WrittenPath result;
    std::string text(written);
    std::replace(text.begin(), text.end(), '\\', '/');
    std::size_t pos = RootLength(text);
    result.root = text.substr(0, pos);
    while (pos < text.size()) {
        const std::size_t end = std::min(text.find('/', pos), text.size());
        if (end > pos) result.parts.push_back(text.substr(pos, end - pos));
        pos = end + 1;
    }
    return result;
}

fs::path ParentOf(const fs::path& folder) {
    const fs::path name = folder.filename();
    if (folder.empty() || name == ".." || name == ".")
        return name == "." ? ParentOf(folder.parent_path()) : folder / "..";
    if (name.empty()) // ends in a separator, or is a root
        return folder.has_relative_path() ? ParentOf(folder.parent_path()) : folder;
    return folder.parent_path();
}

struct Listing {
    std::unordered_map<std::string, fs::path> exact; // by the name's text
    std::unordered_map<std::string, std::string, TextHash, TextEqual> anyCase;
};

Listing List(const fs::path& folder) {
    Listing result;
    std::error_code failed;
    std::vector<std::string> names;
    for (fs::directory_iterator entry(folder.empty() ? "." : folder, failed), end; !failed && entry != end;
         entry.increment(failed)) {
        const fs::path name = entry->path().filename();
        names.push_back(PathText(name));
        result.exact.emplace(names.back(), name);
    }
    std::sort(names.begin(), names.end()); // of several that differ in case, the first is the same everywhere
    for (std::string& name : names)
        result.anyCase.try_emplace(name, name);
    return result;
}

} // namespace

struct PathResolver::Cache {
    std::unordered_map<fs::path::string_type, Listing> folders;

    const Listing& Folder(const fs::path& folder) {
        const auto [entry, isNew] = folders.try_emplace(folder.native());
        if (isNew) entry->second = List(folder);
        return entry->second;
    }
};

PathResolver::PathResolver() : cache_(std::make_unique<Cache>()) {}
PathResolver::~PathResolver() = default;

std::optional<fs::path> PathResolver::Resolve(const fs::path& folder, std::string_view written) {
    const WrittenPath path = Parse(written);
    fs::path result = Start(folder, path);
    if (!path.root.empty() && !result.has_root_directory()) return {};
    bool any = false;
    for (const std::string& part : path.parts) {
        if (part == ".") continue;
        if (part == "..") {
            result = ParentOf(result);
            continue;
        }
        const Listing& listing = cache_->Folder(result);
        auto name = listing.exact.find(part);
        if (name == listing.exact.end()) {
            const auto other = listing.anyCase.find(part);
            if (other == listing.anyCase.end()) return {};
            name = listing.exact.find(other->second);
        }
        result /= name->second;
        any = true;
    }
    std::error_code failed;
    if (!any && !fs::exists(result.empty() ? "." : result, failed)) return {};
    return result;
}

fs::path PathResolver::Native(const fs::path& folder, std::string_view written) {
    const WrittenPath path = Parse(written);
    fs::path result = Start(folder, path);
    for (const std::string& part : path.parts) {
        if (part == "..")
            result = ParentOf(result);
        else if (part != ".")
            result /= PathFromText(part);
    }
    return result;
}

} // namespace glotta
