// Numbers by text, exact. One flat table: with very many texts it is the cache that decides the time.
#pragma once
#include <bit>
#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

namespace glotta {

class TextIndex {
public:
    // For at most `count` texts. They are not copied.
    explicit TextIndex(std::size_t count) : slots_(std::bit_ceil(2 * count + 1)) { texts_.reserve(count); }

    // The number of the text, which is added when it is new: 0, 1, 2 ...
    std::size_t Add(std::string_view text) {
        Slot& slot = Find(text);
        if (slot.number == 0) {
            texts_.push_back(text);
            slot = {Hash(text), static_cast<std::uint32_t>(texts_.size())};
        }
        return slot.number - 1;
    }
    // npos when the text is not there.
    std::size_t IndexOf(std::string_view text) { return std::size_t{Find(text).number} - 1; }
    static constexpr std::size_t npos = static_cast<std::size_t>(-1);

private:
    struct Slot {
        std::uint32_t hash = 0, number = 0; // number 0: free
    };

    static std::uint32_t Hash(std::string_view text) {
        const std::uint64_t hash = std::hash<std::string_view>()(text);
        return static_cast<std::uint32_t>(hash ^ (hash >> 32));
    }
    Slot& Find(std::string_view text) {
        const std::uint32_t hash = Hash(text);
        for (std::size_t at = hash;; ++at) {
            Slot& slot = slots_[at & (slots_.size() - 1)];
            if (slot.number == 0 || (slot.hash == hash && texts_[slot.number - 1] == text)) return slot;
        }
    }

    std::vector<Slot> slots_;
    std::vector<std::string_view> texts_;
};

} // namespace glotta
