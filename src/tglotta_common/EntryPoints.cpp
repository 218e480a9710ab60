// What the library offers by name. Each thread has its own source and its own compiled expressions.
#include "CommentTest.h"
#include "WholeMatch.h"

#ifdef _WIN32
#define ENTRY_POINT extern "C" __declspec(dllexport)
#else
#define ENTRY_POINT extern "C" __attribute__((visibility("default")))
#endif

namespace {

thread_local glotta::CommentTest comments;

} // namespace

ENTRY_POINT void InitInternalPasSource(const char* source) noexcept {
    try {
        comments.Init(source ? source : "");
    } catch (...) {
        comments = {};
    }
}

ENTRY_POINT bool IsCommentAt(int a, int b, bool isCpp) noexcept {
    try {
        return comments.IsCommentAt(a, b, isCpp);
    } catch (...) {
        return false;
    }
}

ENTRY_POINT bool gxREStringMatches(const char* pattern, const char* text) noexcept {
    if (!pattern || !text) return false;
    try {
        thread_local glotta::WholeMatch expressions;
        return expressions.Matches(pattern, text);
    } catch (...) {
        return false;
    }
}
