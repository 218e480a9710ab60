// The checksum of ZIP and PNG: CRC-32 with the reflected polynomial EDB88320.
#pragma once
#include <array>
#include <cstdint>
#include <string_view>

namespace glotta {

inline std::uint32_t Crc32(std::string_view bytes) {
    static const std::array<std::uint32_t, 256> table = [] {
        std::array<std::uint32_t, 256> values;
        for (std::uint32_t i = 0; i < values.size(); ++i) {
            values[i] = i;
            for (int bit = 0; bit < 8; ++bit)
                values[i] = values[i] >> 1 ^ (values[i] & 1 ? 0xEDB88320 : 0);
        }
        return values;
    }();
    std::uint32_t crc = 0xFFFFFFFF;
    for (const char byte : bytes)
        crc = crc >> 8 ^ table[(crc ^ static_cast<unsigned char>(byte)) & 0xFF];
    return ~crc;
}

} // namespace glotta
