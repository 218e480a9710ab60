// TGlotta_Common, loaded by name at run time; each of its entry points is optional.
#pragma once
#include <memory>
#include <string>
#include <string_view>

namespace glotta {

class HelperLibrary {
public:
    // Loads the library from beside the program, else from where the system looks. Never fails: what is
    // absent is reported by the Has... functions.
    explicit HelperLibrary(const std::string& name = "TGlotta_Common");
    ~HelperLibrary();
    HelperLibrary(const HelperLibrary&) = delete;
    HelperLibrary& operator=(const HelperLibrary&) = delete;
    static HelperLibrary Absent();
    HelperLibrary(HelperLibrary&&) noexcept;

    bool Loaded() const;
    bool HasCommentTest() const { return init_ && isCommentAt_; }
    bool HasRegExp() const { return reMatches_; }

    // The source belongs to the calling thread until its next call; several threads may scan at once.
    void InitInternalPasSource(const char* source) const { init_(source); }
    bool IsCommentAt(int a, int b, bool isCpp) const { return isCommentAt_(a, b, isCpp); }
    bool REStringMatches(const char* pattern, const char* text) const { return reMatches_(pattern, text); }

private:
    HelperLibrary(std::nullptr_t) {}
    void* handle_ = nullptr;
    void (*init_)(const char*) = nullptr;
    bool (*isCommentAt_)(int, int, bool) = nullptr;
    bool (*reMatches_)(const char*, const char*) = nullptr;
};

} // namespace glotta
