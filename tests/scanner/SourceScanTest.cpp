#include "ScanListing.h"

namespace glotta {
namespace {

TEST(SourceScan, ReadsPascalExpressionsWithTheirTrueExtents) {
    ExpectListings({
        {"one literal, a second on the same line", "Foo('Hello', 'World');",
         "1:5 IDS_0 'Hello' = Hello\n1:14 IDS_1 'World' = World\n"},
        {"semicolon", "S := 'Hello' ;", "1:6 IDS_0 'Hello' ; = Hello\n"},
        {"concatenation with something else", "S := 'Hello' + Name + ' you';",
         "1:6 IDS_0 'Hello' + = Hello\n1:23 IDS_1 ' you' ; =  you\n"},
        {"concatenation that goes on in the next line", "S := 'Hello' +\n  'World';",
         "1:6 IDS_0 'Hello' + = Hello\n2:3 IDS_1 'World' ; = World\n"},
        {"pieces and codes", "S := 'One'#13#10'Two' + ' Three'#9 + #$41#$4 + ^M'x';",
         "1:6 IDS_0 'One'#13#10'Two' + ' Three'#9 + #$41#$4 + ^M'x' ; = One\\r\\nTwo Three\\tA\x04\\r\\nx\n"},
        {"other control characters end the expression", "S := 'One'^J'Two';",
         "1:6 IDS_0 'One' = One (cuts a token)\n1:13 IDS_1 'Two' ; = Two (cuts a token)\n"},
        {"two digits of a code at most", "S := 'One' + #123;",
         "1:6 IDS_0 'One' + #12 = One\x0C (cuts a token)\n"},
        {"codes without digits", "S := 'One' + #$; S := 'Two' + #;",
         "1:6 IDS_0 'One' + = One\n1:23 IDS_1 'Two' + = Two\n"},
        {"codes before the quote", "S := #13'Error'; T := X+#13#$0A'Fatal';",
         "1:6 IDS_0 #13'Error' ; = \\rError\n1:25 IDS_1 #13#$0A'Fatal' ; = \\r\\nFatal\n"},
        {"codes apart from the quote", "S := #13 + 'Error'; S := #13 'Error';",
         "1:12 IDS_0 'Error' ; = Error\n1:30 IDS_1 'Error' ; = Error\n"},
        {"^M before the quote, and a dereference", "S := ^M'Error';\nS := P^ + ^M'Error' + Q^M'Error'",
         "1:6 IDS_0 ^M'Error' ; = \\r\\nError\n2:11 IDS_1 ^M'Error' + = \\r\\nError\n2:26 IDS_2 'Error' = "
         "Error (cuts a token)\n"},
        {"starts with an escaped quote", "S := '''abc''' + Foo('it''s');",
         "1:6 IDS_0 '''abc''' + = 'abc'\n1:22 IDS_1 'it''s' = it's\n"},
        {"quotes only", "S := '''''' + Name; T := ''''; U := '' + 'ab' + '';",
         "1:42 IDS_0 'ab' + '' ; = ab\n6 ssrBadChars ''\n26 ssrBadChars '\n"},
        {"an empty piece inside", "S := 'ab' + '' + 'cd';", "1:6 IDS_0 'ab' + '' + 'cd' ; = abcd\n"},
        {"two literals apart", "S := 'ab' 'cd';", "1:6 IDS_0 'ab' 'cd' ; = ab'cd\n"},
        {"nothing closes it", "S := 'ab' + 'cd;\nT := 'ef';",
         "1:6 IDS_0 'ab' + = ab\n2:6 IDS_1 'ef' ; = ef\n"},
        {"columns and positions count characters", "{ äöü } S := 'Grüße'; Foo('.');{€}Foo('.-');",
         "1:14 IDS_0 'Grüße' ; = Grüße\n39 ssrBadChars .-\n"},
        {"a text block's borders", "S := '''\n  some text\n''';", ""},
    });
}

TEST(SourceScan, ReadsCppExpressionsWithTheirTrueExtents) {
    const SourceFlavour* cpp = &CppFlavour;
    ExpectListings({
        {"escapes stay as written, but for the delimiter", R"(s = "a\tb\\c \"quoted\"";)",
         "1:5 IDS_0 \"a\\tb\\\\c \\\"quoted\\\"\" ; = a\\tb\\\\c \"quoted\"\n", cpp},
        {"an escaped backslash at the end", R"(f("abc\\", "def");)",
         "1:3 IDS_0 \"abc\\\\\" = abc\\\\\n1:12 IDS_1 \"def\" = def\n", cpp},
        {"prefixes", R"(f(L"abc", u8"def", XL"ghi");)",
         "1:3 IDS_0 L\"abc\" = abc\n1:11 IDS_1 u8\"def\" = def\n1:22 IDS_2 \"ghi\" = ghi\n", cpp},
        {"wrappers", R"(f(_T("abc"), TEXT( L"def" ) + x, MY_T("ghi"));)",
         "1:3 IDS_0 _T(\"abc\") = abc\n1:14 IDS_1 TEXT( L\"def\" ) + = def\n1:39 IDS_2 \"ghi\" = ghi\n", cpp},
        {"adjacent literals", R"(f("abc" "def" _T("ghi") "");)",
         "1:3 IDS_0 \"abc\" \"def\" _T(\"ghi\") \"\" = abcdefghi\n", cpp},
        {"a wrapper around something more", R"(f(_T("abc" NAME));)", "1:6 IDS_0 \"abc\" = abc\n", cpp},
        {"character constants", R"(if (c == '"' || c == '\"') f("abc");)", "1:30 IDS_0 \"abc\" = abc\n", cpp},
        {"raw strings", "f(R\"(a\"b)\", LR\"x(c)\"d)x\");",
         "1:3 IDS_0 R\"(a\"b)\" = a\"b\n1:13 IDS_1 LR\"x(c)\"d)x\" = c)\"d\n", cpp},
        {"a raw string over lines", "f(R\"(ab\n\"cd\"\n)\", \"ef\");", "3:5 IDS_0 \"ef\" = ef\n", cpp},
        {"a backslash at the line's end", "f(\"ab\\\n\\\"cd\", \"ef\");", "2:8 IDS_0 \"ef\" = ef\n", cpp},
        {"http in a literal", R"(f("http://x.org", "def"); // "no")",
         "1:3 IDS_0 \"http://x.org\" = http://x.org\n1:19 IDS_1 \"def\" = def\n", cpp},
        {"a raw string's opening in a comment", "/* R\"(ab\" */ f(\"cd\");",
         "1:16 IDS_0 \"cd\" = cd\n4 ssrComments (ab\n", cpp},
        {"comments", "/* \"ab\" 5\" */ f(\"cd\"); /* don't */ f(\"it's\");",
         "1:17 IDS_0 \"cd\" = cd\n1:38 IDS_1 \"it's\" = it's\n4 ssrComments ab\n", cpp},
    });
}

TEST(SourceScan, PairsDelimitersInsideAndOutsideComments) {
    ExpectListings({
        {"an apostrophe in a comment", "{ don't } Foo('ab'); (* can't *) Foo('cd');",
         "1:15 IDS_0 'ab' = ab\n1:38 IDS_1 'cd' = cd\n"},
        {"comments side by side", "{ a'b } { c'd } Foo('ef');", "1:21 IDS_0 'ef' = ef\n"},
        {"a literal inside a comment", "{ Foo('ab' } Bar('cd');", "1:18 IDS_0 'cd' = cd\n7 ssrComments ab\n"},
        {"a comment over lines", "{ It's\n 'ab'\n} Bar('cd');", "3:7 IDS_0 'cd' = cd\n10 ssrComments ab\n"},
        {"without the test", "{ It's\n 'ab'\n}", "2:2 IDS_0 'ab' = ab\n", &PascalFlavour, false, false},
        {"behind //", "Foo('ab'); // Foo('cd')\n// don't\nBar('http://x', 'ef');",
         "1:5 IDS_0 'ab' = ab\n3:5 IDS_1 'http://x' = http://x\n3:17 IDS_2 'ef' = ef\n"},
        {"a brace in a literal opens no comment", "Foo('{'); Bar('ab}');", "1:15 IDS_0 'ab}' = ab}\n"},
    });
}

TEST(SourceScan, SkipsByTheRulesInTheirOrder) {
    ExpectListings({
        {"ignorable length", "Foo('a', 'ab', '', 'é');", "1:10 IDS_0 'ab' = ab\n"},
        {"ignorable length counts an escaped quote twice", "Foo('abc', 'abcd', 'a''b', 'ab''');",
         "1:12 IDS_0 'abcd' = abcd\n1:20 IDS_1 'a''b' = a'b\n1:28 IDS_2 'ab''' = ab'\n", &PascalFlavour,
         false, true, [](SettingsValues& s) { s.IgnorableLength = 3; }},
        {"length nought", "Foo('', 'a');", "1:9 IDS_0 'a' = a\n", &PascalFlavour, false, true,
         [](SettingsValues& s) { s.IgnorableLength = 0; }},
        {"bad characters", "Foo('...'); Foo('..a');", "1:17 IDS_0 '..a' = ..a\n5 ssrBadChars ...\n"},
        {"a word", "Foo('ok'); Foo('OK!');", "1:16 IDS_0 'OK!' = OK!\n5 ssrByPhrase ok\n", &PascalFlavour,
         false, true, [](SettingsValues& s) { s.SkipWords.SetText("OK"); }},
        {"an expression", "Foo('okay'); Foo('not OK');",
         "1:18 IDS_0 'not OK' = not OK\n5 ssrByPhrasesRE okay\n", &PascalFlavour, false, true,
         [](SettingsValues& s) {
             s.SkipWords.SetText("[Oo]k.*");
             s.UseRegExpForSkip = true;
         }},
        {"the word's rule comes before the comment's", "{ 'Ok', 'No' }",
         "3 ssrByPhrase Ok\n9 ssrComments No\n", &PascalFlavour, false, true,
         [](SettingsValues& s) { s.SkipWords.SetText("OK"); }},
        {"a line", "  Assert(X, 'ab'); Foo('cd');\nFoo('äSSERT');\nassert(y);",
         "1 ssrByLine   Assert(X, 'ab'); Foo('cd');\n32 ssrByLine Foo('äSSERT');\n", &PascalFlavour, false,
         true, [](SettingsValues& s) { s.SkipLines.SetText("zzz\r\n\r\nassert(x\r\nÄssert"); }},
        {"a line and the marker", "Assert('ab'); {TGL:IGNORE}",
         "1 ssByIgnoreTag Assert('ab'); {TGL:IGNORE}\n", &PascalFlavour, false, true,
         [](SettingsValues& s) { s.SkipLines.SetText("assert"); }},
    });
}

TEST(SourceScan, HonoursMarkers) {
    ExpectListings({
        {"region in any case", " {tgl:ignore on} \nA('ab');\n{TGL:IGNORE OFF}\nA('cd');",
         "4:3 IDS_0 'cd' = cd\n"},
        {"a marker beside code opens nothing", "A('ab'); {TGL:IGNORE ON}\nA('cd');",
         "1:3 IDS_0 'ab' = ab\n2:3 IDS_1 'cd' = cd\n"},
        {"STARTIGNORE before the literal, as written", "{TGL:IGNORE ON} A('ab');\n{tgl:ignore on} A('cd');",
         "2:19 IDS_0 'cd' = cd\n1 ssByIgnoreTag {TGL:IGNORE ON} A('ab');\n"},
        {"between two literals", "A('ab', {TGL:IGNORE ON} 'cd');",
         "1:3 IDS_0 'ab' = ab\n7 ssByIgnoreTag , {TGL:IGNORE ON} 'cd');\n"},
        {"ignored line in any case", "A('ab'); {tgl:Ignore}\nB; {TGL:IGNORE}",
         "1 ssByIgnoreTag A('ab'); {tgl:Ignore}\n"},
        {"next line", "{TGL:IGNORE NEXT}\nA('ab');\nA('cd');\n{TGL:IGNORE NEXT}", "3:3 IDS_0 'cd' = cd\n"},
        {"a released line",
         "{TGL:IGNORE ON}\nA('ab');\n{TGL:TRANSLATE NEXT}\nA('cd');\nA('ef');\n{TGL:IGNORE OFF}\nA('gh');",
         "4:3 IDS_0 'cd' = cd\n7:3 IDS_1 'gh' = gh\n"},
        {"released outside a region", "{TGL:TRANSLATE NEXT}\nA('ab');\nA('cd');",
         "2:3 IDS_0 'ab' = ab\n3:3 IDS_1 'cd' = cd\n"},
        {"a part below an open region", "{TGL:IGNORE ON}\nA('ab');\n{TGL:IGNORE OFF}\nA('cd');",
         "4:3 IDS_0 'cd' = cd\n", &PascalFlavour, false, true, nullptr, 17},
        {"a part below a closed region", "{TGL:IGNORE ON}\n{TGL:IGNORE OFF}\nA('ab');",
         "3:3 IDS_0 'ab' = ab\n", &PascalFlavour, false, true, nullptr, 35},
        {"a part that begins inside a line", "\nA('é', 'ab', 'cd');", "2:14 IDS_0 'cd' = cd\n",
         &PascalFlavour, false, true, nullptr, 14},
        {"C/C++", "/*TGL:IGNORE ON*/\nf(\"ab\");\n/*TGL:IGNORE OFF*/\nf(\"cd\"); /*TGL:IGNORE*/\nf(\"ef\");",
         "5:3 IDS_0 \"ef\" = ef\n50 ssByIgnoreTag f(\"cd\"); /*TGL:IGNORE*/\n", &CppFlavour},
    });
}

TEST(SourceScan, LeavesLocalizedLiteralsAlone) {
    ExpectListings({
        {"all methods, any case",
         "A(glotta1.GetText('ab'), glotta1.GETTEXTW('cd'), G.GetTextOrDefaultC('ef'), 'gh');",
         "1:77 IDS_0 'gh' = gh\n"},
        {"another call, and another argument", "A(Text('ab'), G.GetTextC(1, 'cd'));",
         "1:8 IDS_0 'ab' = ab\n1:29 IDS_1 'cd' = cd\n"},
        {"with the text kept as a comment", "A(G.GetTextOrDefault('IDS_0' (* 'Don't' *) ) + 'x y');",
         "1:48 IDS_0 'x y' = x y\n33 ssrComments Don\n"},
    });
}

TEST(SourceScan, FindsConstants) {
    const SourceFlavour* pascal = &PascalFlavour;
    const auto upper = [](SettingsValues& s) { s.CnstPermanent = 1; };
    ExpectListings({
        {"names",
         "unit U;\ninterface\nconst\n  Caption = 'Hello';\n  Typed: string = 'ab';\n  N = 5;\nvar\n  V: "
         "string = 'cd';",
         "4:13 strCaption 'Hello' ; = Hello\n5:19 strTyped 'ab' ; = ab\n", pascal, true},
        {"upper case", "const Caption = 'Hello'; Second = 'ab';",
         "1:17 strCAPTION 'Hello' ; = Hello\n1:35 strSECOND 'ab' ; = ab\n", pascal, true, true, upper},
        {"over lines", "const\n  A = 'ab' +\n    'cd;' +\n    'ef';\n  B = 'gh';",
         "2:7 strA 'ab' +\\r\\n    'cd;' +\\r\\n    'ef' ; = abcd;ef\n5:7 strB 'gh' ; = gh\n", pascal, true},
        {"arrays and records",
         "const\n  A: array[0..1] of string = (\n    'ab',\n    'cd');\n  R: TRec = (N: 'ef'; M: 'gh');\n  B "
         "= 'x';",
         "3:5 strA 'ab' = ab\n4:5 strA_1 'cd' = cd\n5:17 strR 'ef' ; = ef\n5:26 strR_1 'gh' = gh\n", pascal,
         true},
        {"the only semicolon stands in the comment",
         "const\n  A = 'ab' (* x; *)\n  + 'cd';\n  B = 'ef' (* y *) ;",
         "2:7 strA 'ab' = ab\n3:5 strA_1 'cd' ; = cd\n4:7 strB 'ef' = ef\n", pascal, true},
        {"localized already", "const\n  A: string = 'ab'; // TGL: Localized (Don't modify!)\n  B = 'cd';",
         "3:7 strB 'cd' ; = cd\n", pascal, true},
        {"in a routine, and a parameter",
         "procedure P(const S: string = 'no');\nconst C = 'ab';\nbegin\n  if S = 'no' then;\nend;",
         "2:11 strC 'ab' ; = ab\n", pascal, true},
        {"comments and markers", "const\n  A = 'ab'; { B = 'cd'; }\n  C = 'ef'; {TGL:IGNORE}\n  D = '..';",
         "2:7 strA 'ab' ; = ab\n26 ssrComments cd\n35 ssByIgnoreTag   C = 'ef'; {TGL:IGNORE}\n67 ssrBadChars "
         "..\n",
         pascal, true},
        {"C/C++ has none", "const char* a = \"ab\";", "", &CppFlavour, true},
    });
}

TEST(SourceScan, NumbersAroundIdentifiersInUse) {
    SettingsValues settings;
    const ScanRules rules(settings, Helper(false));
    ScanInput input;
    input.text = "Foo('aa', 'bb', 'cc');";
    input.component = "glotta1";
    input.idsInUse = {"ids_0", "IDS_2"};
    std::string progress;
    input.onFound = [&](std::size_t found) { progress += std::to_string(found); };
    EXPECT_EQ(Listing(ScanSource(input, rules)),
              "1:5 IDS_1 'aa' = aa\n1:11 IDS_3 'bb' = bb\n1:17 IDS_4 'cc' = cc\n");
    EXPECT_EQ(progress, "123");
}

} // namespace
} // namespace glotta
