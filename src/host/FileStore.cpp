#include "host/FileStore.h"

#include "platform/Error.h"
#include "platform/Files.h"

namespace glotta {
namespace {

[[noreturn]] void FailChanged(const std::filesystem::path& file) {
    throw Error(file.string() +
                ": the file was changed by another program since it was opened; nothing was saved");
}

} // namespace

std::string FileStore::Read(const std::filesystem::path& file) const {
    const auto found = index_.find(file);
    return found != index_.end() ? pending_[found->second].newBytes : ReadFile(file);
}

bool FileStore::Exists(const std::filesystem::path& file) const {
    std::error_code ignored;
    return index_.contains(file) || std::filesystem::is_regular_file(file, ignored);
}

void FileStore::Stage(FileChange change) {
    const auto found = index_.find(change.file);
    if (found == index_.end()) {
        index_.emplace(change.file, pending_.size());
        pending_.push_back(std::move(change));
        return;
    }
    FileChange& waiting = pending_[found->second];
    if (waiting.newBytes != change.oldBytes) FailChanged(change.file);
    waiting.newBytes = std::move(change.newBytes);
}

void FileStore::Save(std::vector<FileChange> changes) {
    if (!deferWrites) return SaveAndCommit(std::move(changes));
    for (FileChange& change : changes)
        Stage(std::move(change));
}

void FileStore::SaveAndCommit(std::vector<FileChange> changes) {
    const FileStore before = *this;
    try {
        for (FileChange& change : changes)
            Stage(std::move(change));
        WritePending();
    } catch (...) {
        *this = before;
        throw;
    }
}

void FileStore::WritePending() {
    FileTransaction transaction;
    for (FileChange& change : pending_) {
        // A file that was deleted comes back only for those who know that it is gone.
        if (std::filesystem::exists(change.file) ? ReadFile(change.file) != change.oldBytes
                                                 : !change.oldBytes.empty())
            FailChanged(change.file);
        if (change.newBytes != change.oldBytes) transaction.Add(change.file, change.newBytes);
    }
    transaction.Commit();
    pending_.clear();
    index_.clear();
}

std::vector<FileChange> FileStore::Pending() const {
    return pending_;
}

} // namespace glotta
