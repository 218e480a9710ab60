#include "editors/FlagPictures.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <span>

namespace glotta {

namespace {

using Color = std::uint32_t; // 0xRRGGBB

constexpr Color White = 0xFFFFFF, Black = 0x101010, Red = 0xD01C2A, DarkRed = 0xA01028, Blue = 0x1A3F94,
                Navy = 0x10245C, Sky = 0x3B8EDE, Green = 0x108548, Yellow = 0xF8CC1B, Orange = 0xF07C22;

enum class Shape : unsigned char { Field, Disc, Saltire, Triangle };

// Drawn one over the other. A disc has the middle at x, y and the radius w; a saltire (both diagonals) and
// the triangle at the staff fill the flag, one as thick and one as long as w.
struct Layer {
    Color color;
    Shape shape = Shape::Field;
    int x = 0, y = 0, w = FlagWidth, h = FlagHeight;
};
constexpr Layer Disc(Color color, int x, int y, int radius) {
    return {color, Shape::Disc, x, y, radius, 0};
}
constexpr Layer Saltire(Color color, int thickness) {
    return {color, Shape::Saltire, 0, 0, thickness, 0};
}
constexpr Layer Triangle(Color color, int length) {
    return {color, Shape::Triangle, 0, 0, length, 0};
}
constexpr Layer Field(Color color, int x, int y, int w, int h) {
    return {color, Shape::Field, x, y, w, h};
}
constexpr Layer Row(Color color, int from, int count) {
    return Field(color, 0, from, FlagWidth, count);
}
constexpr Layer Column(Color color, int from, int count) {
    return Field(color, from, 0, count, FlagHeight);
}
constexpr std::size_t MostLayers = 9;
using Flag = std::array<Layer, MostLayers>; // the first one covers it all; layers of no width end it

constexpr Layer End = Field(0, 0, 0, 0, 0);

template <class... Layers> constexpr Flag Drawn(Color ground, Layers... layers) {
    static_assert(sizeof...(layers) < MostLayers);
    Flag flag;
    flag.fill(End);
    flag[0] = {ground};
    std::size_t i = 1;
    ((flag[i++] = layers), ...);
    return flag;
}
constexpr Flag Rows(Color top, Color middle, Color bottom) {
    return Drawn(top, Row(middle, 5, 6), Row(bottom, 11, 5));
}
constexpr Flag Columns(Color left, Color middle, Color right) {
    return Drawn(left, Column(middle, 8, 8), Column(right, 16, 8));
}
constexpr Flag NordicCross(Color ground, Color rim, Color cross) {
    return Drawn(ground, Column(rim, 6, 6), Row(rim, 5, 6), Column(cross, 7, 4), Row(cross, 6, 4));
}

constexpr Flag Flags[] = {
    Drawn(Blue, Saltire(White, 4), Saltire(Red, 1), Column(White, 9, 6), Row(White, 5, 6), Column(Red, 10, 4),
          Row(Red, 6, 4)),
    Drawn(Red, Row(White, 2, 2), Row(White, 6, 2), Row(White, 10, 2), Row(White, 14, 2),
          Field(Navy, 0, 0, 11, 8)),
    Rows(Black, Red, Yellow),
    Columns(Blue, White, Red),
    Columns(Green, White, Red),
    Drawn(Red, Row(Yellow, 4, 8)),
    Drawn(Red, Column(Green, 0, 10), Disc(Yellow, 10, 8, 4), Disc(Red, 10, 8, 2)),
    Drawn(Green, Disc(Yellow, 12, 8, 6), Disc(Blue, 12, 8, 4)),
    Rows(Red, White, Blue),
    Columns(Black, Yellow, Red),
    Columns(Green, White, Orange),
    Rows(Red, White, Red),
    Drawn(Red, Field(White, 10, 3, 4, 10), Field(White, 7, 6, 10, 4)),
    NordicCross(Red, White, White),
    NordicCross(Blue, Yellow, Yellow),
    NordicCross(Red, White, Blue),
    NordicCross(White, Blue, Blue),
    Drawn(White, Row(Red, 8, 8)),
    Drawn(White, Row(Red, 8, 8), Triangle(Blue, 11)),
    Rows(Red, White, Green),
    Columns(Blue, Yellow, Red),
    Rows(White, Green, Red),
    Rows(White, Blue, Red),
    Drawn(Sky, Row(Yellow, 8, 8)),
    Rows(Sky, Black, White),
    Rows(Yellow, Green, Red),
    Drawn(DarkRed, Row(White, 6, 4)),
    Drawn(Blue, Row(White, 2, 2), Row(White, 6, 2), Row(White, 10, 2), Row(White, 14, 2),
          Field(Blue, 0, 0, 10, 10), Field(White, 4, 0, 2, 10), Field(White, 0, 4, 10, 2)),
    Drawn(Red, Disc(White, 9, 8, 5), Disc(Red, 11, 8, 4), Disc(White, 15, 8, 1)),
    Drawn(White, Row(Blue, 2, 2), Row(Blue, 12, 2), Disc(Blue, 12, 8, 3), Disc(White, 12, 8, 2)),
    Drawn(White, Disc(Red, 12, 8, 5)),
    Drawn(Red, Disc(Yellow, 6, 5, 3), Disc(Yellow, 11, 2, 1), Disc(Yellow, 12, 5, 1), Disc(Yellow, 11, 9, 1)),
    Drawn(Red, Row(White, 3, 10), Row(Navy, 6, 4)),
};

bool Covers(const Layer& layer, int x, int y) {
    switch (layer.shape) {
    case Shape::Disc: {
        const double dx = x + 0.5 - layer.x, dy = y + 0.5 - layer.y;
        return dx * dx + dy * dy < layer.w * layer.w;
    }
    case Shape::Saltire: {
        const double down = (x + 0.5) * FlagHeight / FlagWidth, across = y + 0.5;
        return std::min(std::abs(across - down), std::abs(FlagHeight - across - down)) < layer.w * 0.6;
    }
    case Shape::Triangle:
        return (x + 0.5) / layer.w < 1 - std::abs(y + 0.5 - FlagHeight / 2.0) * 2 / FlagHeight;
    default:
        return x >= layer.x && x < layer.x + layer.w && y >= layer.y && y < layer.y + layer.h;
    }
}

Color ColorAt(const Flag& flag, int x, int y) {
    Color color = 0;
    for (const Layer& layer : flag)
        if (layer.w > 0 && Covers(layer, x, y)) color = layer.color;
    return color;
}

void PutNumber(std::string& bytes, std::uint32_t number, int size) {
    for (int i = 0; i < size; ++i)
        bytes += char((number >> (8 * i)) & 0xFF);
}

std::uint32_t NumberAt(std::string_view bytes, std::size_t at, int size = 4) {
    std::uint32_t number = 0;
    for (int i = 0; i < size; ++i)
        number |= std::uint32_t(static_cast<unsigned char>(bytes[at + std::size_t(i)])) << (8 * i);
    return number;
}

constexpr std::uint32_t FileHeader = 14, InfoHeader = 40;

} // namespace

std::size_t FlagCount() {
    return std::size(Flags);
}

std::string FlagBitmap(std::size_t flag) {
    constexpr std::uint32_t pixels = FlagWidth * FlagHeight * 3; // a row fills whole words
    static_assert(FlagWidth * 3 % 4 == 0);
    std::string bytes = "BM";
    PutNumber(bytes, FileHeader + InfoHeader + pixels, 4);
    PutNumber(bytes, 0, 4);
    PutNumber(bytes, FileHeader + InfoHeader, 4);
    PutNumber(bytes, InfoHeader, 4);
    PutNumber(bytes, FlagWidth, 4);
    PutNumber(bytes, FlagHeight, 4);
    PutNumber(bytes, 1, 2);
    PutNumber(bytes, 24, 2);
    PutNumber(bytes, 0, 4); // not packed
    PutNumber(bytes, pixels, 4);
    for (int unused = 0; unused < 4; ++unused)
        PutNumber(bytes, 0, 4);
    for (int y = FlagHeight - 1; y >= 0; --y)
        for (int x = 0; x < FlagWidth; ++x)
            PutNumber(bytes, ColorAt(Flags[flag], x, y), 3);
    return bytes;
}

bool IsBitmap(std::string_view bytes) {
    if (bytes.size() < FileHeader + InfoHeader || !bytes.starts_with("BM")) return false;
    const std::int64_t start = NumberAt(bytes, 10), header = NumberAt(bytes, 14);
    const auto width = std::int64_t(std::int32_t(NumberAt(bytes, 18)));
    const std::int64_t height = std::abs(std::int64_t(std::int32_t(NumberAt(bytes, 22))));
    const std::int64_t bits = NumberAt(bytes, 28, 2);
    const std::uint32_t packing = NumberAt(bytes, 30), size = NumberAt(bytes, 34);
    constexpr std::int64_t most = 1 << 15;
    if (header < InfoHeader || width <= 0 || width > most || height == 0 || height > most) return false;
    const bool depths[] = {bits == 1, bits == 4, bits == 8, bits == 16, bits == 24, bits == 32};
    if (std::none_of(std::begin(depths), std::end(depths), [](bool is) { return is; })) return false;
    const bool packed = packing == 1 || packing == 2; // run lengths: the header tells their bytes
    const std::int64_t pixels = packed ? std::int64_t(size) : (width * bits + 31) / 32 * 4 * height;
    return start >= std::int64_t(FileHeader) + header && start + pixels <= std::int64_t(bytes.size());
}

} // namespace glotta
