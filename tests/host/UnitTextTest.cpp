#include "host/UnitBuffer.h"
#include "platform/Error.h"

#include <gtest/gtest.h>

#include <random>

using namespace glotta;
using namespace std::string_literals;

namespace {

std::vector<std::optional<Encoding>> AllEncodings() {
    std::vector<std::optional<Encoding>> all{std::nullopt};
    for (const char* name :
         {"windows-1252", "windows-1251", "932", "936", "utf-8", "utf-8-bom", "utf-16le", "utf-16be"})
        all.push_back(EncodingByName(name));
    return all;
}

// The bytes after loading, and after a change that is taken back.
std::string RoundTrip(const std::string& bytes, std::optional<Encoding> told) {
    UnitBuffer buffer(DecodeUnit(bytes, told));
    if (EncodeUnit(buffer.Unit(), "u") != bytes) return "differs unchanged";
    const std::size_t size = buffer.Text().size();
    buffer.Apply({{0, size / 2, "x\r\ny"}, {size, size, "\n\r"}});
    buffer.Apply({{0, buffer.Text().size(), ""}});
    buffer.Undo();
    buffer.Undo();
    if (EncodeUnit(buffer.Unit(), "u") != bytes) return "differs after undo";
    return buffer.Modified() ? "modified after undo" : "same";
}

// Text with visible line ends.
std::string Shown(std::string_view text) {
    std::string result;
    for (const char c : text)
        result += c == '\r' ? "<CR>" : c == '\n' ? "<LF>" : std::string(1, c);
    return result;
}

std::string Saved(const UnitBuffer& buffer) {
    return Shown(EncodeUnit(buffer.Unit(), "u"));
}

} // namespace

TEST(UnitText, AnyBytesComeBack) {
    std::vector<std::string> table{"",
                                   "\r",
                                   "\n",
                                   "\r\n",
                                   "\r\r\n",
                                   "\n\r",
                                   "\r\n\r",
                                   "a",
                                   "a\r\r\nb\n\n\rc\r",
                                   "a\nb\n",
                                   "a\rb\r",
                                   "a\r\nb",
                                   "\0\0\n\0"s,
                                   "end\x1A",
                                   "x\x1A\r\ny\n",
                                   "\xEF\xBB\xBF",
                                   "\xEF\xBB\xBF\xEF\xBB\xBF\n\xFF\n",
                                   "\xFF\xFE",
                                   "\xFE\xFF\n",
                                   "\xFF\xFE\n\0"s,
                                   "\xFF\xFE\r\0\n\0x"s,
                                   "\xFF\xFE\0\xD8\n\0"s,
                                   "\xFE\xFF\0\r\0\n\xDC"s,
                                   "\xC3\xA4\n\xC3\r\n\xED\xA0\x80\r",
                                   "\xF4\x80\x80\x80\n\xF4\x8F\xBF\xBF\r\n",
                                   "\x81\x8D\n\x90\r\n\x9D",
                                   "\x82\n\x83\\\r\n\xFA\x40\x87\x90\r"};
    std::string all;
    for (int i = 0; i < 256; ++i)
        all += static_cast<char>(i);
    table.push_back(all);
    table.push_back(all + "\xFF\xFE" + all);
    table.push_back("\xFF\xFE" + all + all.substr(1));
    std::mt19937 random(7);
    for (int i = 0; i < 300; ++i) {
        std::string bytes;
        for (unsigned length = random() % 40; length > 0; --length)
            bytes += "\r\n\r\n\xC3\xA4\xFF\xFEz\x1A\x82\xE4\xB8\xAD"[random() % 15];
        table.push_back(bytes);
    }
    for (const auto& encoding : AllEncodings())
        for (const std::string& bytes : table)
            ASSERT_EQ(RoundTrip(bytes, encoding), "same")
                << (encoding ? encoding->Name() : "detected") << ": " << testing::PrintToString(bytes);
}

TEST(UnitText, BufferHoldsCrLfAndNewLinesCopyTheirNeighbour) {
    struct Case {
        std::string bytes, buffer;
        TextEdits edits; // on the buffer
        std::string saved;
    };
    const Case cases[] = {
        {"a\nb\n", "a<CR><LF>b<CR><LF>", {{0, 0, "n\r\n"}, {4, 4, "m\n"}}, "n<LF>a<LF>bm<LF><LF>"},
        {"a\rb", "a<CR><LF>b", {{4, 4, "\nc\n"}}, "a<CR>b<CR>c<CR>"},
        {"a", "a", {{1, 1, "\n"}}, "a<CR><LF>"},
        {"a\r\nb\nc", "a<CR><LF>b<CR><LF>c", {{4, 4, "1\n2"}, {7, 7, "\nd"}}, "a<CR><LF>b1<LF>2<LF>c<LF>d"},
        {"a\r\nb\nc\n", "a<CR><LF>b<CR><LF>c<CR><LF>", {{0, 6, ""}}, "c<LF>"},
        // A line end is kept or removed as a whole.
        {"a\r\nb\nc", "a<CR><LF>b<CR><LF>c", {{1, 2, ""}, {5, 5, "x"}}, "ab<LF>xc"},
        // CR and LF that would meet stay two line ends.
        {"a\rx\nb", "a<CR><LF>x<CR><LF>b", {{3, 4, ""}}, "a<CR><LF><LF>b"},
    };
    for (const Case& test : cases) {
        UnitBuffer buffer(DecodeUnit(test.bytes));
        EXPECT_EQ(Shown(buffer.Text()), test.buffer);
        EXPECT_TRUE(buffer.Apply(test.edits));
        EXPECT_EQ(Saved(buffer), test.saved) << test.buffer;
        EXPECT_TRUE(buffer.Undo());
        EXPECT_EQ(Saved(buffer), Shown(test.bytes));
        EXPECT_TRUE(buffer.Redo());
        EXPECT_EQ(Saved(buffer), test.saved);
    }
}

TEST(UnitText, OverlappingEditsAreRefused) {
    UnitBuffer buffer(DecodeUnit("abcdef"));
    EXPECT_THROW(buffer.Apply({{0, 3, "x"}, {2, 4, "y"}}), Error);
    EXPECT_THROW(buffer.Apply({{5, 9, "x"}}), Error);
    EXPECT_FALSE(buffer.Apply({{2, 2, ""}}));
    EXPECT_EQ(buffer.Text() + (buffer.Undo() ? "!" : ""), "abcdef");
}

TEST(UnitText, UnencodableTextNamesItsPlace) {
    UnitBuffer buffer(DecodeUnit("a\nb\n"));
    buffer.Apply({{4, 4, "\u0416"}});
    try {
        EncodeUnit(buffer.Unit(), "Main.pas");
        ADD_FAILURE() << "written";
    } catch (const Error& error) {
        EXPECT_STREQ(error.what(),
                     "Main.pas: line 2: the character \"\u0416\" (U+0416) cannot be written in windows-1252");
    }
}

TEST(UnitBuffer, PlacesInCharactersLinesAndColumns) {
    for (const std::string line : {"abc", "\u00E4\u4E2Dz"}) { // ASCII and not
        UnitBuffer buffer(DecodeUnit("\xEF\xBB\xBF" + line + "\n\n" + line));
        std::string found;
        for (std::size_t character = 0; character <= 11; ++character) {
            const std::size_t byte = buffer.CharToByte(character);
            const EditPos pos = buffer.ByteToPos(byte);
            found += std::to_string(buffer.ByteToChar(byte)) + "=" + std::to_string(pos.line) + ":" +
                     std::to_string(pos.column) + " ";
        }
        EXPECT_EQ(found, "0=1:1 1=1:2 2=1:3 3=1:4 4=1:5 5=2:1 6=2:2 7=3:1 8=3:2 9=3:3 10=3:4 10=3:4 ")
            << line;
        const auto at = [&](int l, int c) { return buffer.ByteToChar(buffer.PosToByte({l, c})); };
        EXPECT_EQ(at(1, 99), 3u); // behind the line's end
        EXPECT_EQ(at(2, 1), 5u);
        EXPECT_EQ(at(9, 1), 10u);
        EXPECT_EQ(at(0, -4), 0u);
    }
}
