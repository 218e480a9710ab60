// Libraries loaded by name while the program runs.
#pragma once
#include <filesystem>
#include <string>
#include <string_view>

namespace glotta {

// The folder of the running program; empty when the system does not tell.
std::filesystem::path ProgramFolder();
// The file name that a library has on this system: "Name.dll", "Name.so".
std::string LibraryFileName(std::string_view name);

// Null when it cannot be loaded. A name without a folder is looked for where the system looks.
void* LoadLibraryFile(const std::filesystem::path& file);
void UnloadLibrary(void* library);
// Null when the library has no such entry point.
void* LibraryEntry(void* library, const char* name);

} // namespace glotta
