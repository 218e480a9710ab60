#include "WholeMatch.h"

#define PCRE2_CODE_UNIT_WIDTH 8
#include <pcre2.h>

namespace glotta {

namespace {

// A pattern that backtracks without end gives up after a few milliseconds.
constexpr std::uint32_t mostSteps = 100'000, deepest = 10'000, heapKiB = 8 * 1024;
constexpr std::size_t longestPattern = 64 * 1024, mostPatterns = 1024;

template <auto Free> struct Freed {
    template <class T> void operator()(T* object) const { Free(object); }
};
template <class T, auto Free> using Owned = std::unique_ptr<T, Freed<Free>>;
using Code = Owned<pcre2_code, pcre2_code_free>;

bool IsUtfError(int result) {
    return result <= PCRE2_ERROR_UTF8_ERR1 && result >= PCRE2_ERROR_UTF8_ERR21;
}

} // namespace

struct WholeMatch::Machine {
    Owned<pcre2_compile_context, pcre2_compile_context_free> compiling{pcre2_compile_context_create(nullptr)};
    Owned<pcre2_match_context, pcre2_match_context_free> matching{pcre2_match_context_create(nullptr)};
    Owned<pcre2_match_data, pcre2_match_data_free> data{pcre2_match_data_create(1, nullptr)};

    Machine() {
        if (!compiling || !matching || !data) throw std::bad_alloc();
        pcre2_set_max_pattern_length(compiling.get(), longestPattern);
        pcre2_set_match_limit(matching.get(), mostSteps);
        pcre2_set_depth_limit(matching.get(), deepest);
        pcre2_set_heap_limit(matching.get(), heapKiB);
    }

    Code Compile(std::string_view pattern, std::uint32_t mode) const {
        int error = 0;
        std::size_t place = 0;
        return Code(pcre2_compile(reinterpret_cast<PCRE2_SPTR>(pattern.data()), pattern.size(),
                                  PCRE2_ANCHORED | PCRE2_ENDANCHORED | PCRE2_NEVER_BACKSLASH_C | mode, &error,
                                  &place, compiling.get()));
    }

    int Match(const Code& code, std::string_view text) const {
        return pcre2_match(code.get(), reinterpret_cast<PCRE2_SPTR>(text.data()), text.size(), 0, 0,
                           data.get(), matching.get());
    }
};

// Compiled for characters and, for a text that is not valid UTF-8, for bytes.
struct WholeMatch::Pattern {
    Code characters, bytes;
    bool bytesTried = false;
};

WholeMatch::WholeMatch() : machine_(std::make_unique<Machine>()) {}
WholeMatch::~WholeMatch() = default;

bool WholeMatch::Matches(std::string_view pattern, std::string_view text) {
    auto found = patterns_.find(std::string(pattern));
    if (found == patterns_.end()) {
        if (patterns_.size() >= mostPatterns) patterns_.clear();
        found = patterns_.try_emplace(std::string(pattern)).first;
        found->second.characters = machine_->Compile(pattern, PCRE2_UTF | PCRE2_UCP);
    }
    Pattern& compiled = found->second;
    if (compiled.characters) {
        const int result = machine_->Match(compiled.characters, text);
        if (!IsUtfError(result)) return result >= 0;
    }
    if (!std::exchange(compiled.bytesTried, true))
        compiled.bytes = machine_->Compile(pattern, PCRE2_NEVER_UTF);
    return compiled.bytes && machine_->Match(compiled.bytes, text) >= 0;
}

} // namespace glotta
