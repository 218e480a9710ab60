// Files as the system's calls see them; used by Files.cpp alone.
#pragma once
#include <filesystem>
#include <string>
#include <string_view>

namespace glotta {

// An open file; every failure is an Error "file: reason".
class SystemFile {
public:
    // CreateNew fails when the file exists; Shared creates it when it does not.
    enum class Mode { Read, Change, CreateNew, Shared };
    // Errors name the file that it is `inPlaceOf`, where there is one.
    SystemFile(const std::filesystem::path& file, Mode mode, const std::filesystem::path& inPlaceOf = {});
    ~SystemFile();
    SystemFile(const SystemFile&) = delete;
    SystemFile& operator=(const SystemFile&) = delete;

    std::string ReadAll();
    void Write(std::string_view bytes);
    void StartFlush(); // to the disk, without waiting; a hint that a Flush will come
    void Flush();      // to the disk
    void TakePermissionsOf(const std::filesystem::path& other);
    // The handle leaves this object's care.
    int Release();

private:
    std::filesystem::path file_;
    int handle_;
};

// Waits for an exclusive lock on the open file.
void LockHandle(int handle, const std::filesystem::path& file);
void CloseFileHandle(int handle);
// An existing file may be written; an Error otherwise.
void RequireWritable(const std::filesystem::path& file);
// Makes a rename in the folder durable, where the system can.
void FlushFolder(const std::filesystem::path& folder);
int ProcessId();

} // namespace glotta
