// The files of a session: what lies on disk, and what was saved but waits to be written.
#pragma once
#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace glotta {

struct FileChange {
    std::filesystem::path file;
    std::string oldBytes, newBytes; // oldBytes: as last read or saved
};

class FileStore {
public:
    // Saved files wait in memory until Commit; reading gives what waits.
    bool deferWrites = false;

    std::string Read(const std::filesystem::path& file) const;
    bool Exists(const std::filesystem::path& file) const;

    // Takes several files together, all or none. Throws Error when one was changed by others since it was
    // read.
    void Save(std::vector<FileChange> changes);
    // Saves, and writes everything that waits, whatever deferWrites says.
    void SaveAndCommit(std::vector<FileChange> changes);
    // What waits, against what lies on disk.
    std::vector<FileChange> Pending() const;

private:
    void Stage(FileChange change);
    void WritePending();
    std::vector<FileChange> pending_; // in order of saving
    std::map<std::filesystem::path, std::size_t> index_;
};

} // namespace glotta
