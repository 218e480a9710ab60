#include "ide/SourceTokens.h"

#include <random>

namespace glotta {
namespace {

constexpr char letters[] = "INSCYDxAB"; // by TokenKind; comments are x

// "I:begin S:'a' ..." with line ends shown as \n.
std::string Listing(std::string_view text, bool isCpp) {
    std::string result;
    for (const Token& token : Tokenize(text, isCpp, KeepComments::Yes)) {
        if (!result.empty()) result += ' ';
        result += letters[static_cast<std::size_t>(token.kind)];
        result += ':';
        for (char c : text.substr(token.begin, token.end - token.begin))
            c == '\n' ? result += "\\n" : c == '\r' ? result += "\\r" : result += c;
    }
    return result;
}

struct Case {
    std::string_view text, tokens;
};

TEST(SourceTokens, Pascal) {
    const Case cases[] = {
        {"x:=1..2+1.5e-3+$FF+%101;", "I:x Y::= N:1 Y:.. N:2 Y:+ N:1.5e-3 Y:+ N:$FF Y:+ N:%101 Y:;"},
        {"&begin \xD0\xB6\xD1\x83\xD0\xBA a<>b", "I:&begin I:\xD0\xB6\xD1\x83\xD0\xBA I:a Y:<> I:b"},
        {"'it''s' '' ''''", "S:'it''s' S:'' S:''''"},
        {"'a'#13'b' #13#$0A'x' 'A'^M'B' #%11", "S:'a'#13'b' S:#13#$0A'x' S:'A'^M'B' S:#%11"},
        {"'a' #13 'b'", "S:'a' S:#13 S:'b'"},
        {"p^['a'] P = ^T; q^.x :=^M'a'+ ^J+^TNode",
         "I:p Y:^ Y:[ S:'a' Y:] I:P Y:= Y:^ I:T Y:; I:q Y:^ Y:. I:x Y::= "
         "S:^M'a' Y:+ S:^J Y:+ Y:^ I:TNode"},
        {"'open\n'x'", "B:'open S:'x'"},
        {"'''\n it's\n  '''+'x' '''\n", "S:'''\\n it's\\n  ''' Y:+ S:'x' B:'''"},
        {"{ ' } (* ' *) // '\n{$I 'a'} (*$R 'b'*)x", "x:{ ' } x:(* ' *) x:// ' D:{$I 'a'} D:(*$R 'b'*) I:x"},
        {"{ open 'x'", "x:{ open 'x'"},
        {"(*) 'x'", "x:(*) 'x'"},
        {"# ! \" a", "B:# B:! B:\" I:a"},
        {"asm mov al,'x' ; don't\n @@end: call end1 { c } end; s:='a'",
         "I:asm A:mov al,'x' ; don't A:@@end: call end1 x:{ c } I:end Y:; I:s Y::= S:'a'"},
        {"asm nop; end; x", "I:asm A:nop; I:end Y:; I:x"},
        {"asm ; the end of it\n db \"'\" ; at the end\nend x",
         "I:asm A:; the end of it A:db \"'\" ; at the end I:end I:x"},
        {"{$IFDEF A}asm nop {$ELSE}begin 'a' {$ENDIF}end",
         "D:{$IFDEF A} I:asm A:nop D:{$ELSE} I:begin S:'a' D:{$ENDIF} I:end"},
        {"x.asm end", "I:x Y:. I:asm I:end"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(Listing(c.text, false), c.tokens) << c.text;
}

TEST(SourceTokens, Cpp) {
    const Case cases[] = {
        {"a->b<<=c::d ... x>>y", "I:a Y:-> I:b Y:<<= I:c Y::: I:d Y:... I:x Y:>> I:y"},
        {"1'000'000 0x1F 1e-5f .5 'a' 1.e+3", "N:1'000'000 N:0x1F N:1e-5f N:.5 C:'a' N:1.e+3"},
        {R"("a\"b" L"x" u8"y" L'c' '\'' "\\")", R"(S:"a\"b" S:L"x" S:u8"y" C:L'c' C:'\'' S:"\\")"},
        {"\"a\\\nb\" \"open\nx", "S:\"a\\\\nb\" B:\"open I:x"},
        {"R\"x(a)\"b)x\" LR\"(\n)\" R\"y(open", "S:R\"x(a)\"b)x\" S:LR\"(\\n)\" B:R\"y(open"},
        {"// a \\\n b\nx /* \" */ y", "x:// a \\\\n b I:x x:/* \" */ I:y"},
        {"#define A \"x\" /* c */ B \\\n  C // d\n  # if\na#b",
         "D:#define A \"x\" x:/* c */ D:B \\\\n  C x:// d D:# if I:a Y:# I:b"},
        {"#error don't /* do\nx", "D:#error don't /* do I:x"},
        {"asm { mov ax, '}' ; it's\n { } } x", "I:asm Y:{ A:mov ax, '}' ; it's A:{ } Y:} I:x"},
        {"__asm mov eax, 1\nasm(\"nop\"); asm volatile (\"x\")",
         "I:__asm A:mov eax, 1 I:asm Y:( S:\"nop\" Y:) Y:; I:asm I:volatile Y:( S:\"x\" Y:)"},
        {"a \\\n b @", "I:a I:b B:@"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(Listing(c.text, true), c.tokens) << c.text;
}

// On any text tokens, comments and blanks tile the whole, and both ways to find comments agree.
TEST(SourceTokens, TilesAnyText) {
    constexpr std::string_view pieces[] = {
        "'",   "''",  "'''\n", "{",    "}",   "(*",   "*)",  "//", "\n", "\r\n",
        "{$",  "asm", " ",     "end",  ";",   "#13",  "^M",  "\"", "\\", "/*",
        "*/",  "#",   "x",     "R\"(", ")\"", "\\\n", "1'0", "u8", "..", std::string_view("\0", 1),
        "\xFF"};
    std::mt19937 random(7);
    for (int round = 0; round < 4000; ++round) {
        std::string text;
        for (std::size_t n = random() % 24; n > 0; --n)
            text += pieces[random() % std::size(pieces)];
        for (bool isCpp : {false, true}) {
            std::string comments, found;
            std::size_t at = 0;
            for (const Token& token : Tokenize(text, isCpp, KeepComments::Yes)) {
                ASSERT_LT(token.begin, token.end);
                for (; at < token.begin; ++at)
                    ASSERT_TRUE(static_cast<unsigned char>(text[at]) <= ' ' || (isCpp && text[at] == '\\'))
                        << text;
                at = token.end;
                if (token.kind == TokenKind::Comment)
                    comments += std::to_string(token.begin) + '-' + std::to_string(token.end) + ' ';
            }
            for (const ByteRange& range : FindComments(text, isCpp))
                found += std::to_string(range.begin) + '-' + std::to_string(range.end) + ' ';
            ASSERT_EQ(found, comments) << text;
        }
    }
}

} // namespace
} // namespace glotta
