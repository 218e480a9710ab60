#include "scanner/CallPlaces.h"

namespace glotta {
namespace {

// Each literal with the reason why no call can stand there: "'a' in a const section|'b' ".
std::string Reasons(std::string_view text, bool isCpp) {
    const CallPlaces places(text, isCpp);
    std::string result;
    for (const Token& token : Tokenize(text, isCpp))
        if (token.kind == TokenKind::String)
            result.append(result.empty() ? "" : "|")
                .append(text.substr(token.begin, token.end - token.begin))
                .append(" ")
                .append(places.WhyNot(token.begin, token.end));
    return result;
}

struct Case {
    std::string text, reasons;
};

void Expect(std::initializer_list<Case> cases, bool isCpp, std::string_view before) {
    for (const Case& c : cases)
        EXPECT_EQ(Reasons(std::string(before).append(c.text), isCpp), c.reasons) << c.text;
}

TEST(CallPlaces, PascalDeclarations) {
    Expect(
        {
            {"const A = 'aa'; type T = record x: string; end; const B: T = (x: 'bb'); var C: string = 'cc';",
             "'aa' in a const section|'bb' in a const section|'cc' initial value of a variable"},
            {"resourcestring A = 'aa';", "'aa' in a resourcestring section"},
            {"uses A in 'a.pas', B;", "'a.pas' file of a used unit"},
            {"procedure P; external 'dll' name 'pp'; function F: T; stdcall; external D index 1 + 'x'; begin "
             "s('aa') end;",
             "'dll' name of an external routine|'pp' name of an external routine|'x' name of an external "
             "routine|'aa' "},
            {"exports P name 'pp';", "'pp' name of an exported routine"},
            {"procedure P(const A: string = 'aa'; B: string = 'bb'); const C = 'cc'; begin P('dd') end;",
             "'aa' default value of a parameter|'bb' default value of a parameter|'cc' in a const "
             "section|'dd' "},
            {"const A = 'aa' deprecated 'bb'; procedure P; deprecated 'cc'; begin end;",
             "'aa' in a const section|'bb' text of a deprecated or platform directive|'cc' text of a "
             "deprecated or "
             "platform directive"},
            {"type I = interface(IBase) ['{00000000-0000-0000-C000-000000000046}'] procedure P; message "
             "'mm'; end;",
             "'{00000000-0000-0000-C000-000000000046}' interface GUID|'mm' in a message directive"},
            {"type [Attr('aa')] T = class [Attr('bb', 1)] procedure P([Attr('cc')] x: T); const X = 'dd'; "
             "private "
             "property Y: string index 'ee' read Z; class var V: string; end;",
             "'aa' in an attribute|'bb' in an attribute|'cc' in an attribute|'dd' in a const section|'ee' in "
             "a "
             "declaration"},
            {"type T = array['a'..'z'] of string; U = class; V = class of U; W = class(U); X = class end; "
             "const A = 'aa';",
             "'a' in a type section|'z' in a type section|'aa' in a const section"},
            {"type G<T: class, constructor; U: record> = class procedure P<V: record>; end; var A: string = "
             "'aa';",
             "'aa' initial value of a variable"},
            {"type F = function(A: T): T of object; R = reference to procedure; var P: procedure; const A = "
             "'aa';",
             "'aa' in a const section"},
            {"initialization s('aa'); finalization s('bb'); end. s('cc')",
             "'aa' |'bb' |'cc' behind the end of the unit"},
        },
        false, "unit U; interface implementation ");
    Expect({{"program P; uses A in 'a.pas' {Form1}; {$R 'x'} begin Run('aa') end.",
             "'a.pas' file of a used unit|'aa' "},
            {"package P; requires A; contains B in 'b.pas'; end.", "'b.pas' file of a used unit"},
            {"unit U; interface procedure P(A: string = 'aa'); const B = 'bb'; implementation procedure P; "
             "begin s('cc') end;",
             "'aa' default value of a parameter|'bb' in a const section|'cc' "}},
           false, "");
}

TEST(CallPlaces, ArgumentsThatArePointers) {
    const std::string is = " argument of MessageBox is a PChar: typecast the call";
    Expect(
        {
            {"MessageBox(0, 'aa', 'bb', 0); Application.MessageBox('cc', PChar('dd'), MB_OK); messageboxa(h, "
             "P('ee'), s, x)",
             "'aa'" + is + "|'bb'" + is + "|'cc'" + is + "|'dd' |'ee' "},
            {"MessageBox(0, 'aa' + #13 + 'bb', ('c' + Name), 0)",
             "'aa'" + is + "|#13" + is + "|'bb'" + is + "|'c'" + is},
            {"Canvas.TextOut(1, 2, 'aa'); TextOut(DC, 1, 2, 'bb', 2); ShowMessage('cc'); MessageBox := 'dd'",
             "'aa' |'bb' argument of TextOut is a PChar: typecast the call|'cc' |'dd' "},
            {"WinHelp(H[F('aa', 'bb')], 'cc', 0, 0); Run('dd')",
             "'aa' |'bb' |'cc' argument of WinHelp is a PChar: typecast the call|'dd' "},
            {"MessageBox(0, x; Run(1, 'aa', 'bb'); end; procedure Q; begin StrPCopy(P, 'cc')",
             "'aa' |'bb' |'cc' "},
        },
        false, "unit U; implementation procedure P; begin ");
    const std::string to = " assigned to a PChar: typecast the call";
    const std::string own = " argument is a PChar: typecast the call";
    Expect({{"var P, Q: PChar; S: string; begin P := 'aa'; R.q := 'bb'; S := 'cc'; P^ := 'dd'; Sei.lpVerb := "
             "'ee'; P := PChar('ff'); Result := 'gg' end;",
             "'aa'" + to + "|'bb'" + to + "|'cc' |'dd' |'ee'" + to + "|'ff' |'gg' "},
            {"var P: PAnsiChar; begin end; procedure R; var P: string; begin P := 'aa' end;", "'aa' "},
            {"begin end; function F(const S: string): PWideChar; function G: string; begin Result := 'aa' end; "
             "begin if x then Result := 'bb' else Result := S + 'cc' end;",
             "'aa' |'bb'" + to + "|'cc' "},
            {"begin end; procedure R(var U; A, B: PChar; const C: string = ''; D: LPCTSTR = nil); begin end; "
             "begin R(x, 'aa', PChar('bb'), 'cc', 'dd'); S('ee')",
             "'' default value of a parameter|'aa'" + own + "|'bb' |'cc' |'dd'" + own + "|'ee' "},
            {"begin end; procedure R(A: PChar); overload; begin end; procedure R(A: string); overload; begin "
             "R('aa') end;",
             "'aa' "}},
           false, "unit U; implementation procedure Z; ");
    Expect({{"MessageBox(0, _T(\"aa\"), (\"bb\" + s).c_str(), 0); strcpy(b, \"cc\"); f(\"dd\");",
             "\"aa\" argument of MessageBox is a char pointer: add .c_str() to the call|\"bb\" |\"cc\" "
             "argument of strcpy is "
             "a char pointer: add .c_str() to the call|\"dd\" "}},
           true, "void f() { ");
    const std::string pointer = " initial value of a char pointer: add .c_str() to the call";
    Expect({{"const char *p = \"aa\", *q = c ? \"bb\" : \"cc\"; LPCTSTR r = _T(\"dd\"); char* s = "
             "String(\"ee\").c_str(); "
             "String t = \"ff\"; t = (char*)\"gg\"; char u = v * f(\"hh\");",
             "\"aa\"" + pointer + "|\"bb\"" + pointer + "|\"cc\"" + pointer + "|\"dd\"" + pointer +
                 "|\"ee\" |\"ff\" |\"gg\" |\"hh\" "}},
           true, "void f() { ");
    const std::string assigned = " assigned to a char pointer: add .c_str() to the call";
    const std::string passed = " argument is a char pointer: add .c_str() to the call";
    Expect({{"void f(String s, const char *p, String t) { p = \"aa\"; s = \"bb\"; t = \"cc\"; w.lpszClassName "
             "= _T(\"ee\"); p = g(\"ff\"); if (p == \"gg\") {} }",
             "\"aa\"" + assigned + "|\"bb\" |\"cc\" |\"ee\"" + assigned + "|\"ff\" |\"gg\" "},
            {"void f(int a, const char *b = \"aa\", ...); void T::g(String p) { f(0, \"bb\", \"cc\"); p = \"dd\"; g(\"ee\"); }",
             "\"aa\" default argument|\"bb\"" + passed + "|\"cc\" |\"dd\" |\"ee\" "}},
           true, "char* p; ");
}

TEST(CallPlaces, PascalStatements) {
    Expect(
        {
            {"case s('aa') of 'bb'..'cc', 'dd': t('ee'); 'f': begin u('gg'); end; else v('hh'); w('ii'); "
             "end; x('jj');",
             "'aa' |'bb' label of a case statement|'cc' label of a case statement|'dd' label of a case "
             "statement|'ee' "
             "|'f' label of a case statement|'gg' |'hh' |'ii' |'jj' "},
            {"if c in ['a'..'z', '_'] then s(Format('bb', ['cc', 'd', 'e' + 'f']));",
             "'a' in a range|'z' in a range|'_' single character, may be a Char|'bb' |'cc' |'d' single "
             "character, may be "
             "a Char|'e' |'f' "},
            {"s := 'a'; s := x + 'b' + y; s := #13; s := ''''; s := 'aa'; s := ''; s := '\xC3\xA4'",
             "'a' single character, may be a Char|'b' |#13 single character, may be a Char|'''' single "
             "character, may be "
             "a Char|'aa' |'' |'\xC3\xA4' single character, may be a Char"},
            {"const A = 'aa'; var B := 'bb'; const C: string = 'cc'; s('dd');",
             "'aa' in an inline constant|'bb' |'cc' in an inline constant|'dd' "},
            {"s(procedure(const A: string) const B = 'bb'; begin t('cc') end, 'dd'); u('ee')",
             "'bb' in a const section|'cc' |'dd' |'ee' "},
            {"repeat try s('aa') except on E: T do s('bb') end until t('cc'); asm mov al, 'dd' end; s('ee')",
             "'aa' |'bb' |'cc' |'ee' "},
            {"{$IFDEF A} if x then begin {$ELSE} begin {$ENDIF} s('aa') end; end; const B = 'bb';",
             "'aa' |'bb' in a const section"},
            {"end; {$IFDEF A} const B = 'bb'; procedure Q; begin {$ELSE} procedure Q; begin s('cc'); "
             "{$ENDIF} end; var D: T "
             "= 'dd';",
             "'bb' in a const section|'cc' |'dd' initial value of a variable"},
            {"end; {$IFDEF A} procedure T.Q; {$ENDIF} {$IFDEF B} function T.Q: T; {$ENDIF} begin s('aa') "
             "end; "
             "procedure T.R; begin end; const B = 'bb';",
             "'aa' |'bb' in a const section"},
            {"if x then begin procedure T.Q; const B = 'bb'; begin s('cc') end;",
             "'bb' in a const section|'cc' "},
            {"if x then begin s(1; procedure T.Q; const B = 'bb'; begin s('cc') end;",
             "'bb' in a const section|'cc' "},
        },
        false, "unit U; interface implementation procedure T.P; begin ");
}

TEST(CallPlaces, Cpp) {
    Expect(
        {
            {"char a[] = \"aa\"; AnsiString b(\"bb\"); void f(const char* p = \"cc\"); extern \"C\" { int x "
             "= g(\"dd\"); }",
             "\"aa\" at file or class scope|\"bb\" at file or class scope|\"cc\" default argument|\"C\" at "
             "file or class "
             "scope|\"dd\" at file or class scope"},
            {"namespace n { class A : public B { String s = \"aa\"; void f() const { g(\"bb\"); } }; } int "
             "h(int x) { "
             "g(\"cc\"); }",
             "\"aa\" at file or class scope|\"bb\" |\"cc\" "},
            {"T::T(int a) : B(\"aa\"), c{\"bb\"}, d(1) { g(\"cc\"); } String s = \"dd\";",
             "\"aa\" |\"bb\" |\"cc\" |\"dd\" at file or class scope"},
            {"struct S* f() { g(\"aa\"); } enum E { A = sizeof(\"bb\") }; template <class T = int> void h() "
             "{ g(\"cc\"); }",
             "\"aa\" |\"bb\" in sizeof|\"cc\" "},
            {"T& operator=(const T& t) { g(\"aa\"); } int a[] = { f(\"bb\") }, b; class "
             "__declspec(dllexport) C { String s = "
             "\"cc\"; };",
             "\"aa\" |\"bb\" at file or class scope|\"cc\" at file or class scope"},
            {"#define A \"aa\"\nint f() {\n#if X\n if (a) { g(\"bb\");\n#else\n if (b) { "
             "g(\"cc\");\n#endif\n } }\nString s = "
             "\"dd\";",
             "\"bb\" |\"cc\" |\"dd\" at file or class scope"},
            {"void f() { struct L { String s = \"aa\"; void g() { h(\"bb\"); } } l; h(\"cc\"); }",
             "\"aa\" at file or class scope|\"bb\" |\"cc\" "},
            {"int f() try { g(\"aa\"); } catch (...) { g(\"bb\"); }", "\"aa\" |\"bb\" "},
        },
        true, "");
    Expect(
        {
            {"char a[] = \"aa\"; const char* b[2] = { \"bb\" }, c; a[0] = \"cc\"; p->a[1] = \"dd\"; return "
             "x[\"ee\"];",
             "\"aa\" array initialiser|\"bb\" array initialiser|\"cc\" |\"dd\" |\"ee\" "},
            {"static const char* t[] = { \"aa\", g(\"bb\") }; static String s(\"cc\"); constexpr auto u = "
             "\"dd\"; g(\"ee\");",
             "\"aa\" static initialiser|\"bb\" static initialiser|\"cc\" static initialiser|\"dd\" static "
             "initialiser|"
             "\"ee\" "},
            {"g(\"aa\" \"bb\"); g(\"cc\"\n  \"dd\"); printf(\"ee\" PRIu64 \"ff\", M \"gg\"); return \"hh\";",
             "\"aa\" adjacent to another literal or a macro|\"bb\" adjacent to another literal or a macro|"
             "\"cc\" adjacent to another literal or a macro|\"dd\" adjacent to another literal or a macro|"
             "\"ee\" adjacent to another literal or a macro|\"ff\" adjacent to another literal or a macro|"
             "\"gg\" adjacent to another literal or a macro|\"hh\" "},
            {"g(sizeof(\"aa\")); static_assert(x, \"bb\"); asm(\"cc\"); asm volatile (\"dd\" : \"=r\"(x)); "
             "[[x(\"ee\")]] g(\"ff\");",
             "\"aa\" in sizeof|\"bb\" in a constant expression|\"cc\" in assembler code|\"dd\" in assembler "
             "code|\"=r\" in "
             "assembler code|\"ee\" in an attribute|\"ff\" "},
            {"auto l = [&](int x) { g(\"aa\"); }; h([] { g(\"bb\"); }); T<\"cc\"> t; if (x < \"dd\") { "
             "g(L\"ee\"); } T u{\"ff\"};",
             "\"aa\" |\"bb\" |\"cc\" template argument|\"dd\" |L\"ee\" |\"ff\" "},
            {"switch (x) { case f(\"aa\"): g(\"bb\"); default: g(\"cc\"); } x ? g(\"dd\") : \"ee\"; l: "
             "g(\"ff\");",
             "\"aa\" label of a case statement|\"bb\" |\"cc\" |\"dd\" |\"ee\" |\"ff\" "},
        },
        true, "void __fastcall T::f(int x)\n{ ");
}

TEST(CallPlaces, RangesAndConstSections) {
    const std::string_view text =
        "unit U; implementation const A = 'aa'; {c 'cc'} procedure P(const x: T); const B = 'b' + "
        "'c'; var d: T; type E = class const F = 1; end; begin s('a' + #13 + 'b'); end; end.";
    const CallPlaces places(text, false);
    const auto whyNot = [&](std::string_view part) {
        const std::size_t at = text.find(part);
        return std::string(places.WhyNot(at, at + part.size()));
    };
    EXPECT_EQ(whyNot("'a' + #13 + 'b'"), "");
    EXPECT_EQ(whyNot("'a' + #13 +"), "");
    EXPECT_EQ(whyNot("'a' + #1"), "cuts a token");
    EXPECT_EQ(whyNot("s('a'"), "cuts a token");
    EXPECT_EQ(whyNot("'cc'"), "inside a comment");
    EXPECT_EQ(whyNot("'b' + 'c'"), "in a const section");
    std::string sections;
    for (const CallPlaces::ConstSection& section : places.ConstSections())
        sections.append(text.substr(section.begin, section.end - section.begin))
            .append(section.inRoutine ? "[routine]" : "")
            .append(section.inClass ? "[class]|" : "|");
    EXPECT_EQ(sections, " A = 'aa'; {c 'cc'} | B = 'b' + 'c'; [routine]| F = 1; [routine][class]|");

    const std::string_view cpp = "void f() { g(_T(\"aa\"), TEXT(\"bb\") + L\"cc\", '\"', \"d\"); }";
    const CallPlaces cppPlaces(cpp, true);
    const auto whyNotCpp = [&](std::string_view part) {
        const std::size_t at = cpp.find(part);
        return std::string(cppPlaces.WhyNot(at, at + part.size()));
    };
    EXPECT_EQ(whyNotCpp("_T(\"aa\")"), "");
    EXPECT_EQ(whyNotCpp("TEXT(\"bb\") + L\"cc\""), "");
    EXPECT_EQ(whyNotCpp("\"cc\""), "cuts a token");
    EXPECT_EQ(whyNotCpp("\"', \""), "cuts a token");
}

} // namespace
} // namespace glotta
