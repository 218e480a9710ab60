#include "platform/SystemFile.h"

#include "platform/Error.h"
#include "platform/Files.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>

#ifdef _WIN32
#include <io.h>
#include <process.h>
#include <windows.h>
#else
#include <sys/file.h>
#include <unistd.h>
#endif

namespace glotta {
namespace {

[[noreturn]] void Fail(const std::filesystem::path& file, int reason) {
    throw Error(PathText(file) + ": " + std::generic_category().message(reason));
}

// Some systems refuse more than 2 GB in one call.
constexpr std::size_t Piece = std::size_t(1) << 30;

#ifdef _WIN32
int Open(const std::filesystem::path& file, SystemFile::Mode mode) {
    const int flags = mode == SystemFile::Mode::Read        ? _O_RDONLY
                      : mode == SystemFile::Mode::Change    ? _O_WRONLY
                      : mode == SystemFile::Mode::CreateNew ? _O_WRONLY | _O_CREAT | _O_EXCL
                                                            : _O_RDWR | _O_CREAT;
    return _wopen(file.c_str(), flags | _O_BINARY | _O_NOINHERIT, _S_IREAD | _S_IWRITE);
}
auto ReadPiece(int handle, char* to, std::size_t count) {
    return _read(handle, to, unsigned(std::min(count, Piece)));
}
auto WritePiece(int handle, const char* from, std::size_t count) {
    return _write(handle, from, unsigned(std::min(count, Piece)));
}
int FlushToDisk(int handle) {
    return _commit(handle);
}
long long SizeOf(int handle) {
    return _filelengthi64(handle);
}
#else
int Open(const std::filesystem::path& file, SystemFile::Mode mode) {
    const int flags = mode == SystemFile::Mode::Read        ? O_RDONLY
                      : mode == SystemFile::Mode::Change    ? O_WRONLY
                      : mode == SystemFile::Mode::CreateNew ? O_WRONLY | O_CREAT | O_EXCL
                                                            : O_RDWR | O_CREAT;
    return open(file.c_str(), flags | O_CLOEXEC, 0666);
}
auto ReadPiece(int handle, char* to, std::size_t count) {
    return read(handle, to, std::min(count, Piece));
}
auto WritePiece(int handle, const char* from, std::size_t count) {
    return write(handle, from, std::min(count, Piece));
}
int FlushToDisk(int handle) {
    return fsync(handle);
}
long long SizeOf(int handle) {
    struct stat status = {};
    return fstat(handle, &status) == 0 ? status.st_size : -1;
}
#endif

} // namespace

SystemFile::SystemFile(const std::filesystem::path& file, Mode mode, const std::filesystem::path& inPlaceOf)
    : file_(inPlaceOf.empty() ? file : inPlaceOf), handle_(Open(file, mode)) {
    if (handle_ < 0) Fail(file_, errno);
}

SystemFile::~SystemFile() {
    if (handle_ >= 0) CloseFileHandle(handle_);
}

int SystemFile::Release() {
    return std::exchange(handle_, -1);
}

std::string SystemFile::ReadAll() {
    // One byte more than the size tells the end without another allocation; a pipe tells no size.
    std::string bytes(static_cast<std::size_t>(std::max(SizeOf(handle_), 0LL)) + 1, '\0');
    std::size_t size = 0;
    for (;;) {
        const auto got = ReadPiece(handle_, bytes.data() + size, bytes.size() - size);
        if (got < 0 && errno == EINTR) continue;
        if (got < 0) Fail(file_, errno);
        if (got == 0) break;
        size += static_cast<std::size_t>(got);
        if (size == bytes.size()) bytes.resize(size * 2);
    }
    bytes.resize(size);
    return bytes;
}

void SystemFile::Write(std::string_view bytes) {
    while (!bytes.empty()) {
        const auto put = WritePiece(handle_, bytes.data(), bytes.size());
        if (put < 0 && errno == EINTR) continue;
        if (put <= 0) Fail(file_, put < 0 ? errno : ENOSPC);
        bytes.remove_prefix(static_cast<std::size_t>(put));
    }
}

void SystemFile::StartFlush() {
#ifdef SYNC_FILE_RANGE_WRITE
    sync_file_range(handle_, 0, 0, SYNC_FILE_RANGE_WRITE);
#endif
}

void SystemFile::Flush() {
    if (FlushToDisk(handle_) != 0) Fail(file_, errno);
}

void SystemFile::TakePermissionsOf([[maybe_unused]] const std::filesystem::path& other) {
#ifndef _WIN32
    struct stat status = {};
    if (stat(other.c_str(), &status) != 0) return;
    // Another owner's file can be given back to its owner by the superuser only; to its group often.
    [[maybe_unused]] const int owned =
        fchown(handle_, status.st_uid, status.st_gid) == 0 ? 0 : fchown(handle_, uid_t(-1), status.st_gid);
    if (fchmod(handle_, status.st_mode & 07777) != 0) Fail(file_, errno);
#endif
}

void LockHandle(int handle, const std::filesystem::path& file) {
#ifdef _WIN32
    OVERLAPPED place = {};
    if (!LockFileEx(reinterpret_cast<HANDLE>(_get_osfhandle(handle)), LOCKFILE_EXCLUSIVE_LOCK, 0, 1, 0,
                    &place))
        Fail(file, EACCES);
#else
    while (flock(handle, LOCK_EX) != 0)
        if (errno != EINTR) Fail(file, errno);
#endif
}

void CloseFileHandle(int handle) {
#ifdef _WIN32
    _close(handle);
#else
    close(handle);
#endif
}

void RequireWritable(const std::filesystem::path& file) {
#ifdef _WIN32
    const bool writable = _waccess(file.c_str(), 2) == 0;
#else
    const bool writable = access(file.c_str(), W_OK) == 0;
#endif
    if (!writable) Fail(file, errno);
}

void FlushFolder([[maybe_unused]] const std::filesystem::path& folder) {
#ifndef _WIN32
    const int handle = open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0) return;
    fsync(handle);
    close(handle);
#endif
}

int ProcessId() {
#ifdef _WIN32
    return _getpid();
#else
    return getpid();
#endif
}

} // namespace glotta
