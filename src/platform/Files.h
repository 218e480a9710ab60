// Files and paths. Every failure is an Error that names the file and the reason.
#pragma once
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace glotta {

std::string ReadFile(const std::filesystem::path& file);

// UTF-8 text of a path and back, on every system.
std::string PathText(const std::filesystem::path& path);
std::filesystem::path PathFromText(std::string_view text);

// Replaces one file atomically: written beside, flushed, renamed; permissions of an existing file are kept. A
// symbolic link stays and its target is replaced. A file that may not be written is an Error.
void WriteFileAtomically(const std::filesystem::path& file, std::string_view bytes);

// Several files, all or none: every file is prepared beside its target before the first is replaced, and a failure
// while replacing puts back what was already replaced. Of two contents for one file the later counts.
class FileTransaction {
public:
    void Add(std::filesystem::path file, std::string bytes);
    bool Empty() const { return entries_.empty(); }
    void Commit();

private:
    struct Entry {
        std::filesystem::path file;
        std::string bytes;
    };
    std::vector<Entry> entries_;
};

// Holds an exclusive lock between programs on `file`.lock for its life (for read-change-write of shared files).
class FileLock {
public:
    explicit FileLock(const std::filesystem::path& file);
    ~FileLock();
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

private:
    int handle_ = -1;
};

// Resolves a path as a project file writes it ('..\Units\Main.pas') against a folder: backslashes are separators,
// each part is matched exactly first and then without regard to letter case ('..' is taken from the path's text).
// Nothing when it does not exist.
// Folder listings are cached per call object; use one for a whole project.
class PathResolver {
public:
    std::optional<std::filesystem::path> Resolve(const std::filesystem::path& folder, std::string_view written);
    // The path as written, in this system's form, for a file that does not exist.
    static std::filesystem::path Native(const std::filesystem::path& folder, std::string_view written);
    PathResolver();
    ~PathResolver();

private:
    struct Cache;
    std::unique_ptr<Cache> cache_;
};

// File names compare without regard to letter case, with both kinds of separators alike.
bool SameFileName(std::string_view a, std::string_view b);
// Extension with its dot, lower case: ".pas"; empty when there is none.
std::string LowerExtension(std::string_view fileName);

// The user's configuration directory for this system: $XDG_CONFIG_HOME/glotta, ~/.config/glotta, %APPDATA%\glotta.
std::filesystem::path UserConfigDir();
// The path that an environment variable holds; nothing when it is unset or empty.
std::optional<std::filesystem::path> PathFromEnvironment(const char* name);

} // namespace glotta
