#include "runtime/ViewItems.h"

#include "platform/Encoding.h"
#include "vcl/FormText.h"

#include <cstring>

namespace glotta {

namespace {

// Reads little-endian numbers and short strings; past the end everything is zero and `good` false.
class Cursor {
public:
    Cursor(std::string_view bytes, unsigned codePage) : bytes_(bytes), codePage_(codePage) {}

    std::uint32_t Number() {
        std::uint32_t number = 0;
        const std::string_view bytes = Take(4);
        std::memcpy(&number, bytes.data(), bytes.size());
        return number;
    }
    void Skip(std::size_t numbers) { Take(numbers * 4); }
    std::string Text() {
        const std::string_view length = Take(1);
        const std::string_view text = Take(length.empty() ? 0 : static_cast<unsigned char>(length.front()));
        return Decode(text, {EncodingKind::CodePage, codePage_, false});
    }
    bool AtEnd() const { return pos_ == bytes_.size(); }

    bool good = true;

private:
    std::string_view Take(std::size_t count) {
        good = good && count <= bytes_.size() - pos_;
        if (!good) return {"", 0};
        pos_ += count;
        return bytes_.substr(pos_ - count, count);
    }
    std::string_view bytes_;
    unsigned codePage_;
    std::size_t pos_ = 0;
};

std::string Bracketed(std::size_t index) {
    return '[' + std::to_string(index) + ']';
}

// A count, then for each node its size, four image numbers, a pointer, its number of children, its text and
// they.
void Nodes(Cursor& cursor, std::uint32_t count, const std::string& parent, int depth,
           std::vector<ViewItemText>& texts) {
    for (std::uint32_t i = 0; i < count && cursor.good; ++i) {
        cursor.Skip(6);
        const std::uint32_t children = cursor.Number();
        std::string place = parent + Bracketed(i);
        texts.push_back({place, cursor.Text()});
        if (depth == MaxFormDepth) cursor.good = false;
        Nodes(cursor, children, place, depth + 1, texts);
    }
}

} // namespace

// The data's size and the number of items; for each item three image numbers, its number of further columns,
// a pointer and the texts; then the columns' image numbers.
std::vector<ViewItemText> ListViewItemTexts(std::string_view bytes, unsigned codePage) {
    Cursor cursor(bytes, codePage);
    std::vector<ViewItemText> texts;
    cursor.Skip(1);
    const std::uint32_t count = cursor.Number();
    for (std::uint32_t i = 0; i < count && cursor.good; ++i) {
        cursor.Skip(3);
        const std::uint32_t columns = cursor.Number();
        cursor.Skip(1);
        const std::string place = Bracketed(i);
        texts.push_back({place, cursor.Text()});
        for (std::uint32_t column = 0; column < columns && cursor.good; ++column)
            texts.push_back({place + ".SubItems" + Bracketed(column), cursor.Text()});
    }
    if (!cursor.good) texts.clear();
    return texts;
}

std::vector<ViewItemText> TreeViewItemTexts(std::string_view bytes, unsigned codePage) {
    Cursor cursor(bytes, codePage);
    std::vector<ViewItemText> texts;
    Nodes(cursor, cursor.Number(), {}, 0, texts);
    if (!cursor.good || !cursor.AtEnd()) texts.clear();
    return texts;
}

std::string BinaryBytes(const FormValue& value, bool binaryForm) {
    if (binaryForm) return value.text;
    std::string bytes;
    int high = -1;
    for (char c : value.text) {
        if (c <= ' ') continue;
        const int digit = c <= '9' ? c - '0' : (c | 0x20) - 'a' + 10;
        if (high >= 0) bytes += static_cast<char>(high * 16 + digit);
        high = high >= 0 ? -1 : digit;
    }
    return bytes;
}

} // namespace glotta
