// Words of a language looked up at the speed of one hash and one comparison.
#pragma once
#include <array>
#include <cstdint>
#include <string_view>
#include <utility>

namespace glotta {

enum class LetterCase : bool { Matters, Ignored };

// Word is an enumeration of one byte whose value 0 means "none of them". The table is given in lower case
// unless the letter case matters.
template <class Word, std::size_t Count, LetterCase Case> class WordTable {
public:
    using Entry = std::pair<std::string_view, Word>;

    constexpr explicit WordTable(const Entry (&entries)[Count]) {
        for (std::size_t i = 0; i < Count; ++i) {
            words_[i] = entries[i];
            std::size_t slot = Hash(entries[i].first);
            while (slots_[slot])
                slot = (slot + 1) % slotCount;
            slots_[slot] = static_cast<std::uint8_t>(i + 1);
            lengths_ |= std::uint32_t{1} << entries[i].first.size();
        }
    }

    Word Find(std::string_view word) const {
        if (word.size() > longest || !(lengths_ >> word.size() & 1)) return Word{};
        for (std::size_t slot = Hash(word); slots_[slot]; slot = (slot + 1) % slotCount)
            if (Same(word, words_[slots_[slot] - 1].first)) return words_[slots_[slot] - 1].second;
        return Word{};
    }

private:
    static constexpr std::size_t slotCount = 1024, longest = 31;
    static_assert(Count < 200);

    static constexpr std::size_t Fold(char c) { return static_cast<unsigned char>(c) | 0x20; }
    static constexpr std::size_t Hash(std::string_view word) {
        const std::size_t size = word.size();
        return (Fold(word[0]) + 29 * Fold(word[size - 1]) + 137 * Fold(word[size / 2]) + 67 * size) %
               slotCount;
    }
    static constexpr bool Same(std::string_view word, std::string_view entry) {
        if (word.size() != entry.size()) return false;
        for (std::size_t i = 0; i < word.size(); ++i)
            if (word[i] != entry[i] &&
                (Case == LetterCase::Matters || static_cast<char>(Fold(word[i])) != entry[i]))
                return false;
        return true;
    }

    std::array<Entry, Count> words_{};
    std::array<std::uint8_t, slotCount> slots_{};
    std::uint32_t lengths_ = 0;
};

} // namespace glotta
