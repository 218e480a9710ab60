#include "platform/DynamicLibrary.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace glotta {

#ifdef _WIN32

std::filesystem::path ProgramFolder() {
    std::wstring name(32768, L'\0');
    name.resize(GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size())));
    return std::filesystem::path(name).parent_path();
}

std::string LibraryFileName(std::string_view name) {
    return std::string(name) + ".dll";
}

void* LoadLibraryFile(const std::filesystem::path& file) {
    HMODULE library = LoadLibraryW(file.c_str());
    // Results below 33 are error codes of old.
    return reinterpret_cast<std::uintptr_t>(library) < 33 ? nullptr : library;
}

void UnloadLibrary(void* library) {
    FreeLibrary(static_cast<HMODULE>(library));
}

void* LibraryEntry(void* library, const char* name) {
    return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(library), name));
}

#else

std::filesystem::path ProgramFolder() {
    std::error_code error;
    return std::filesystem::read_symlink("/proc/self/exe", error).parent_path();
}

std::string LibraryFileName(std::string_view name) {
    return std::string(name) + ".so";
}

void* LoadLibraryFile(const std::filesystem::path& file) {
    return dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
}

void UnloadLibrary(void* library) {
    dlclose(library);
}

void* LibraryEntry(void* library, const char* name) {
    return dlsym(library, name);
}

#endif

} // namespace glotta
