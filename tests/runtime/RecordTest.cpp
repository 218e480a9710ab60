#include "runtime/Record.h"

using namespace glotta;

namespace {
// Records with '|' for the delimiter and '^' for the escape.
std::string Shown(std::string text) {
    std::replace(text.begin(), text.end(), ItemDelimiter, '|');
    std::replace(text.begin(), text.end(), ItemEscape, '^');
    return text;
}
std::string Record(std::string text) {
    std::replace(text.begin(), text.end(), '|', ItemDelimiter);
    std::replace(text.begin(), text.end(), '^', ItemEscape);
    return text;
}
} // namespace

TEST(Record, WordsAreParedByEverySingleDelimiter) {
    EXPECT_EQ(ExtractWord(1, "a,,c", ','), "a");
    EXPECT_EQ(ExtractWord(2, "a,,c", ','), "");
    EXPECT_EQ(ExtractWord(3, "a,,c", ','), "c");
    EXPECT_EQ(ExtractWord(4, "a,,c", ','), "");
    EXPECT_EQ(ExtractWord(0, "a", ','), "");
    EXPECT_EQ(ExtractWord(1, "", ','), "");
}

TEST(Record, TextsMayHoldAnything) {
    const std::string nasty = "a\x01\x02"
                              "D\r\n'\x02";
    const std::string record = MakeRecord("IDS_0", nasty, 3);
    EXPECT_EQ(Shown(record), "IDS_0|a^D^ED\r\n'^E||");
    EXPECT_EQ(RecordField(record, 2), nasty);
    EXPECT_EQ(Shown(WithField(record, 4, nasty)), "IDS_0|a^D^ED\r\n'^E||a^D^ED\r\n'^E");
    EXPECT_EQ(RecordField(Record("a|^x^"), 2), Record("^x^")) << "an escape nobody wrote is text";
}

TEST(Record, FieldsAndLanguagesChange) {
    EXPECT_EQ(Shown(WithField(Record("id|a|b"), 2, "x")), "id|x|b");
    EXPECT_EQ(Shown(WithField(Record("id|a|b"), 3, "x")), "id|a|x");
    EXPECT_EQ(Shown(WithField("id", 3, "x")), "id||x");
    EXPECT_EQ(Shown(WithField(Record("|a"), 1, "x")), "x|a");
    EXPECT_EQ(Shown(WithLanguages(Record("id|a|b"), 3)), "id|a|b|");
    EXPECT_EQ(Shown(WithLanguages(Record("id|a|b"), 1)), "id|a");
    EXPECT_EQ(Shown(WithLanguages(Record("id||"), 1)), "id|");
    EXPECT_EQ(Shown(WithLanguages("id", 2)), "id||");
}
