#include "scanner/HelperLibrary.h"

#include "platform/DynamicLibrary.h"
#include "platform/Files.h"

namespace glotta {

namespace {

void* LoadBesideProgramOrFromSystem(const std::string& name) {
    const std::filesystem::path file = PathFromText(LibraryFileName(name));
    if (file.has_parent_path()) return LoadLibraryFile(file);
    if (const std::filesystem::path folder = ProgramFolder(); !folder.empty())
        for (const auto& place : {folder, folder.parent_path() / "lib" / "glotta"})
            if (void* library = LoadLibraryFile(place / file)) return library;
    return LoadLibraryFile(file);
}

template <class Entry> void Bind(Entry*& entry, void* library, const char* name) {
    entry = reinterpret_cast<Entry*>(LibraryEntry(library, name));
}

} // namespace

HelperLibrary::HelperLibrary(const std::string& name) : handle_(LoadBesideProgramOrFromSystem(name)) {
    if (!handle_) return;
    Bind(init_, handle_, "InitInternalPasSource");
    Bind(isCommentAt_, handle_, "IsCommentAt");
    Bind(reMatches_, handle_, "gxREStringMatches");
}

HelperLibrary::~HelperLibrary() {
    if (handle_) UnloadLibrary(handle_);
}

HelperLibrary::HelperLibrary(HelperLibrary&& other) noexcept
    : handle_(std::exchange(other.handle_, nullptr)), init_(std::exchange(other.init_, nullptr)),
      isCommentAt_(std::exchange(other.isCommentAt_, nullptr)),
      reMatches_(std::exchange(other.reMatches_, nullptr)) {}

HelperLibrary HelperLibrary::Absent() {
    return HelperLibrary(nullptr);
}

bool HelperLibrary::Loaded() const {
    return handle_ != nullptr;
}

} // namespace glotta
