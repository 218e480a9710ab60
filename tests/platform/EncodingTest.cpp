#include "platform/Encoding.h"
#include "platform/Text.h"

#include <random>

using namespace glotta;

namespace {

// Private-use characters as the code point, so that expectations can be read.
std::string Shown(std::string_view text) {
    std::string shown;
    for (std::size_t pos = 0; pos < text.size();) {
        const char32_t character = NextChar(text, pos);
        char code[16];
        std::snprintf(code, sizeof code, "{%X}", unsigned(character));
        if (character >= 0x10F000 || character == 0xFFFD || (character >= 0x80 && character < 0xA0))
            shown += code;
        else
            AppendChar(shown, character);
    }
    return shown;
}

Encoding Named(const char* name) {
    return EncodingByName(name).value();
}

constexpr const char* EveryEncoding[] = {
    "windows-1250", "windows-1251", "windows-1252", "windows-1253", "windows-1254", "windows-1255",
    "windows-1256", "windows-1257", "windows-1258", "cp437",        "cp850",        "cp852",
    "cp866",        "cp874",        "932",          "936",          "949",          "950",
    "koi8-r",       "koi8-u",       "latin1",       "iso-8859-2",   "utf-8",        "utf-8-bom",
    "utf-16le",     "utf-16be"};

} // namespace

TEST(Encoding, DecodesAsTheSystemsDo) {
    struct Case {
        const char* encoding;
        std::string bytes;
        const char* text;
    };
    const Case cases[] = {
        {"windows-1252", "caf\xE9 \x80 \x81\x8D\x8F\x90\x9D", "café € {81}{8D}{8F}{90}{9D}"},
        {"windows-1251", "\xCF\xF0\xE8\xE2\xE5\xF2 \x98", "Привет {98}"},
        {"windows-1250", "\x8A\xF8", "Šř"},
        {"cp866", "\x8F\xE0", "Пр"},
        {"koi8-r", "\xF0\xD2", "Пр"},
        {"windows-1255", "\xE0\xD9", "א{10FED9}"},
        {"932", "\x83\x5C'\xB1\x81'", "ソ'ｱ{10FE81}'"}, // a backslash as trail byte; a lead byte alone
        {"932", "\xED\x5C", "{10FEED}{10FE5C}"},        // a duplicate of FA 7D and its like
        {"936", "\xC4\xE3\x80", "你€"},
        {"949", "\xB0\xA1", "가"},
        {"950", "\xA7\x41", "你"},
        {"utf-8", "\xD0\x9F\xC3(\xED\xA0\x80\xF4\x8F\xB9\x81", // cut, surrogate, the private character itself
         "П{10FEC3}({10FEED}{10FEA0}{10FE80}{10FEF4}{10FE8F}{10FEB9}{10FE81}"},
        {"utf-8", "\xC0\x80\xF5\x80", "{10FEC0}{10FE80}{10FEF5}{10FE80}"},
        {"utf-16le",
         std::string("\xFF\xFE"
                     "A\0\x3D\xD8\x00\xDE\x00\xD8"
                     "B\0x",
                     13),
         "A😀{10F000}B{10FE78}"},
        {"utf-16be", std::string("\xFE\xFF\xDB\xFF\xDE\x41\xDC\x00", 8), "{10F3FF}{10F641}{10F400}"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(Shown(Decode(c.bytes, Named(c.encoding))), c.text) << c.encoding;
        EXPECT_EQ(Encode(Decode(c.bytes, Named(c.encoding)), Named(c.encoding)).bytes, c.bytes) << c.encoding;
    }
}

TEST(Encoding, EveryByteSequenceComesBack) {
    std::mt19937 random(20240517);
    const std::string pieces[] = {"'",
                                  "\\",
                                  "\xF4\x8F\xB9\x81",
                                  "\xF4\x8F\x80\x80",
                                  "\xED\xA0\x80",
                                  "\xEF\xBB\xBF",
                                  "\xFF\xFE",
                                  "\xFF\xDB\x41\xDE",
                                  "\xD8",
                                  "\xDC",
                                  std::string(1, '\0'),
                                  "\xFA\x7D"};
    for (int round = 0; round < 3000; ++round) {
        std::string bytes;
        for (unsigned size = random() % 40; bytes.size() < size;)
            if (random() % 4 == 0)
                bytes += pieces[random() % std::size(pieces)];
            else
                bytes += static_cast<char>(random() % (random() % 2 ? 256 : 128));
        for (const char* name : EveryEncoding) {
            const Encoding encoding = DetectEncoding(bytes, EncodingByName(name));
            const std::string text = Decode(bytes, encoding);
            const EncodeResult back = Encode(text, encoding);
            ASSERT_FALSE(back.unencodable) << name;
            ASSERT_EQ(back.bytes, bytes) << name;
            for (std::size_t pos = 0; pos < text.size(); pos += CharLength(text, pos))
                ASSERT_NE(CharLength(text, pos), 0u) << name << ": the text is not UTF-8";
        }
    }
    std::string all; // every pair of bytes, in every page with pairs
    for (unsigned pair = 0; pair < 0x10000; ++pair)
        all += {static_cast<char>(pair >> 8), static_cast<char>(pair & 0xFF), '\n'};
    for (const char* name : EveryEncoding)
        EXPECT_TRUE(Encode(Decode(all, Named(name)), Named(name)).bytes.ends_with(all)) << name;
}

TEST(Encoding, IsDetected) {
    struct Case {
        std::string bytes;
        const char* told;
        const char* hint;
        const char* found;
    };
    const Case cases[] = {
        {"plain", "", "", "windows-1252"},       {"plain", "", "1251", "windows-1251"},
        {"plain", "utf-8-bom", "1251", "utf-8"}, {"\xEF\xBB\xBFx", "1251", "", "utf-8-bom"},
        {"\xFF\xFEx", "1251", "", "utf-16le"},   {"\xFE\xFFx", "", "", "utf-16be"},
        {"\xD0\x9F", "", "1251", "utf-8"},       {"\xD0\x9F\xE9", "", "1251", "windows-1251"},
        {"\xD0\x9F", "koi8-r", "", "koi8-r"},    {"\xE9", "", "", "windows-1252"},
        {"cut \xD0", "", "", "windows-1252"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(DetectEncoding(c.bytes, EncodingByName(c.told), EncodingByName(c.hint)).Name(), c.found)
            << c.bytes;
    for (const char* name : {"CP1251", " 1251 ", "Windows-1251", "win1251"})
        EXPECT_EQ(Named(name).Name(), "windows-1251");
    for (const char* name : {"", "klingon", "cp", "99999", "-1251"})
        EXPECT_FALSE(EncodingByName(name)) << name;
}

TEST(Encoding, NamesTheFirstCharacterItLacks) {
    EXPECT_EQ(Encode("abc Ж ", Named("1252")).unencodable, U'Ж');
    EXPECT_EQ(Encode("é ", Named("932")).unencodable, U'é');
    EXPECT_TRUE(CanEncode("é\U0010FE81", Named("1252")));
    EXPECT_FALSE(CanEncode("\U0010F000", Named("1252")));
    for (const char* name : {"1252", "utf-8"}) // a raw quote would end a literal
        EXPECT_FALSE(CanEncode("\U0010FE27", Named(name)));
    EXPECT_TRUE(CanEncode("Ж😀", Named("utf-16le")));
}
