#include "platform/Files.h"

#include "platform/Error.h"
#include "platform/SystemFile.h"

#include <atomic>
#include <set>

namespace glotta {
namespace fs = std::filesystem;
namespace {

// The file that a chain of symbolic links names, which need not exist.
fs::path LinkTarget(fs::path file) {
    std::error_code failed;
    for (int links = 0; fs::is_symlink(file, failed); ++links) {
        if (links == 40) throw Error(PathText(file) + ": too many levels of symbolic links");
        file = file.parent_path() / fs::read_symlink(file, failed);
    }
    return file;
}

fs::path BesideName(const fs::path& target) {
    static std::atomic<unsigned> counter{0};
    fs::path name = target.filename();
    name += ".glotta-" + std::to_string(ProcessId()) + "-" + std::to_string(counter++);
    return target.parent_path() / name;
}

void RemoveQuietly(const fs::path& file) {
    std::error_code ignored;
    fs::remove(file, ignored);
}

// One file on its way: its new content lies beside it until it is put in place, its old one until all are.
class Replacement {
public:
    Replacement(const fs::path& file, std::string_view bytes) : target_(LinkTarget(file)) {
        std::error_code failed;
        existed_ = fs::exists(target_, failed);
        if (existed_) RequireWritable(target_);
        const fs::path beside = BesideName(target_);
        try {
            SystemFile out(beside, SystemFile::Mode::CreateNew, target_);
            fresh_ = beside;
            if (existed_) out.TakePermissionsOf(target_);
            out.Write(bytes);
            if (MayOpenAgain())
                out.StartFlush();
            else
                out.Flush();
        } catch (const Error&) {
            Discard();
            throw;
        }
    }
    // Of many files all are written before the first is flushed: the disk then gets them in one go.
    void Flush() {
        if (MayOpenAgain()) SystemFile(fresh_, SystemFile::Mode::Change, target_).Flush();
    }
    Replacement(Replacement&& other) noexcept
        : target_(std::move(other.target_)), fresh_(std::exchange(other.fresh_, {})),
          old_(std::exchange(other.old_, {})), existed_(other.existed_), inPlace_(other.inPlace_) {}
    Replacement(const Replacement&) = delete;
    Replacement& operator=(const Replacement&) = delete;
    ~Replacement() { Discard(); }

    const fs::path& Target() const { return target_; }

    void KeepOld() {
        if (!existed_) return;
        const fs::path beside = BesideName(target_);
        std::error_code failed;
        fs::create_hard_link(target_, beside, failed);
        old_ = beside;
        if (failed) CopyTargetTo(beside);
    }

    void PutInPlace() {
        std::error_code failed;
        fs::rename(fresh_, target_, failed);
        if (failed) throw Error(PathText(target_) + ": " + failed.message());
        fresh_.clear();
        inPlace_ = true;
    }

    // Empty when the old state is back; else what the user has to know.
    std::string PutBack() {
        if (!inPlace_) return {};
        std::error_code failed;
        const fs::path old = std::exchange(old_, {}); // from here on it is never thrown away
        if (existed_)
            fs::rename(old, target_, failed);
        else
            fs::remove(target_, failed);
        if (!failed) return {};
        return "; " + PathText(target_) + " could not be put back" +
               (existed_ ? ", its former content is in " + PathText(old) : std::string());
    }

private:
    // The library's copy_file may change line ends on Windows.
    void CopyTargetTo(const fs::path& beside) const {
        SystemFile copy(beside, SystemFile::Mode::CreateNew, target_);
        copy.TakePermissionsOf(target_);
        copy.Write(ReadFile(target_));
        copy.Flush();
    }

    // A file that its group may write, but not its owner, gives the fresh one such permissions, too.
    bool MayOpenAgain() const {
        std::error_code failed;
        const fs::perms owner = fs::status(fresh_, failed).permissions() & fs::perms::owner_write;
        return owner != fs::perms::none;
    }

    void Discard() {
        if (!fresh_.empty()) RemoveQuietly(fresh_);
        if (!old_.empty()) RemoveQuietly(old_);
    }

    fs::path target_, fresh_, old_;
    bool existed_ = false, inPlace_ = false;
};

} // namespace

std::string ReadFile(const fs::path& file) {
    return SystemFile(file, SystemFile::Mode::Read).ReadAll();
}

void WriteFileAtomically(const fs::path& file, std::string_view bytes) {
    Replacement replacement(file, bytes);
    replacement.Flush();
    replacement.PutInPlace();
    FlushFolder(replacement.Target().parent_path());
}

void FileTransaction::Add(fs::path file, std::string bytes) {
    entries_.push_back({std::move(file), std::move(bytes)});
}

void FileTransaction::Commit() {
    std::vector<Replacement> replacements;
    std::set<fs::path> targets, folders;
    for (auto entry = entries_.rbegin(); entry != entries_.rend(); ++entry) {
        if (!targets.insert(fs::absolute(LinkTarget(entry->file)).lexically_normal()).second) continue;
        replacements.emplace_back(entry->file, entry->bytes);
        folders.insert(replacements.back().Target().parent_path());
    }
    for (Replacement& replacement : replacements)
        replacement.Flush();
    try {
        for (Replacement& replacement : replacements)
            replacement.KeepOld();
        for (Replacement& replacement : replacements)
            replacement.PutInPlace();
    } catch (const Error& error) {
        std::string message = error.what();
        for (Replacement& replacement : replacements)
            message += replacement.PutBack();
        throw Error(message);
    }
    for (const fs::path& folder : folders)
        FlushFolder(folder);
    entries_.clear();
}

FileLock::FileLock(const fs::path& file) {
    fs::path lock = file;
    lock += ".lock";
    SystemFile opened(lock, SystemFile::Mode::Shared);
    handle_ = opened.Release();
    try {
        LockHandle(handle_, lock);
    } catch (const Error&) {
        CloseFileHandle(handle_);
        throw;
    }
}

FileLock::~FileLock() {
    CloseFileHandle(handle_);
}

} // namespace glotta
