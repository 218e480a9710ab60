#include "scanner/ConstRewrite.h"
#include "support/DiffText.h"

namespace glotta {
namespace {

// The constants with their literals, as a scan would find them: NAME = <literal expression>, marked by [[ and ]].
struct Unit {
    std::string text;
    std::vector<std::pair<std::size_t, std::size_t>> places;

    explicit Unit(std::string_view marked) {
        for (std::size_t at = 0; at < marked.size(); ++at)
            if (marked.substr(at, 2) == "[[") {
                places.emplace_back(text.size(), 0);
                ++at;
            } else if (marked.substr(at, 2) == "]]") {
                places.back().second = text.size();
                ++at;
            } else {
                text += marked[at];
            }
    }
};

std::string Rewritten(std::string_view marked, const std::vector<std::string>& values, bool empty, bool comments) {
    const Unit unit(marked);
    const CallPlaces places(unit.text, false);
    std::vector<FoundConstant> constants;
    for (std::size_t i = 0; i < unit.places.size(); ++i)
        constants.push_back({"", unit.places[i].first, unit.places[i].second, values[i]});
    SettingsValues settings;
    settings.EmptyConstsValues = empty;
    settings.NoCommentsInSources = !comments;
    return ApplyEdits(unit.text, ConstRewrite(unit.text, places, "TForm1").Rewrite(constants, settings));
}

TEST(ConstRewrite, WritesEachDeclarationOnOneLine) {
    const std::string mark = " // TGL: Localized (Don't modify!)";
    struct {
        const char *before, *value, *emptied, *kept;
    } const cases[] = {
        {"const\r\n  Foo = [['It''s']]; // old\r\n", "It's", "const\r\n\tFoo: string = '' (* 'It's' *); // old@\r\n",
         "const\r\n\tFoo: string = 'It''s'; // old@\r\n"},
        {"const\r\n  Foo = [['ab']]; { of\r\n  two lines }\r\n", "ab",
         "const\r\n\tFoo: string = '' (* 'ab' *);@\r\n\t{ of\r\n  two lines }\r\n",
         "const\r\n\tFoo: string = 'ab';@\r\n\t{ of\r\n  two lines }\r\n"},
        {"const Foo: WideString = [['A' +\r\n  #13#10'B']];\r\n", "A\r\nB",
         "const\r\n\tFoo: WideString = '' (* 'A B' *);@\r\n",
         "const\r\n\tFoo: WideString = 'A'#13#10 + \t'B';@\r\n"},
        {"const\r\n  A = 1; Foo { why } = // name\r\n    [['ab']]; B = 2;\r\n", "ab",
         "const\r\n  A = 1;\r\n\t{ why }\r\n\t// name\r\n\tFoo: string = '' (* 'ab' *);@\r\n\tB = 2;\r\n",
         "const\r\n  A = 1;\r\n\t{ why }\r\n\t// name\r\n\tFoo: string = 'ab';@\r\n\tB = 2;\r\n"},
        {"const\r\n  Foo = [['x*)y'#9'z']];", "x*)y\tz", "const\r\n\tFoo: string = '' (* 'x* )y z' *);@",
         "const\r\n\tFoo: string = 'x*)y'#9'z';@"},
    };
    for (const auto& testCase : cases) {
        EXPECT_EQ(Rewritten(testCase.before, {testCase.value}, true, true), ReplaceStr(testCase.emptied, "@", mark));
        EXPECT_EQ(Rewritten(testCase.before, {testCase.value}, false, true), ReplaceStr(testCase.kept, "@", mark));
    }
    EXPECT_EQ(Rewritten("const\r\n  A = [['ab']]; B: string = [['cd']]; C = 1;", {"ab", "cd"}, true, false),
              ReplaceStr("const\r\n\tA: string = '';@\r\n\tB: string = '';@\r\n\tC = 1;", "@", mark));
    const std::string longValue(600, 'x');
    EXPECT_EQ(PascalLiteral(longValue), "'" + std::string(250, 'x') + "' + '" + std::string(250, 'x') + "' + '" +
                                            std::string(100, 'x') + "'");
}

std::string Reasons(std::string_view marked, std::string_view formClass = "TForm1") {
    const Unit unit(marked);
    const CallPlaces places(unit.text, false);
    const ConstRewrite rewrite(unit.text, places, formClass);
    std::string all;
    for (const auto& [begin, end] : unit.places)
        all += rewrite.WhyNotConst({"", begin, end, end - begin == 3 ? "x" : "text"}) + "\n";
    return all;
}

TEST(ConstRewrite, LeavesAloneWhatMustStayConstant) {
    EXPECT_EQ(Reasons(R"(unit U; interface
const
  Free = [['ab']]; Typed: AnsiString = [['x']]; InCode = [['ab']];
  Character = [['x']];
  Names: array[0..1] of string = ([['ab']], [['cd']]);
  Point: TPoint = (Name: [['ab']]);
  Pointer: PChar = [['ab']]; Short: string[20] = [['ab']];
  Sum = [['ab']] + Free2; Sum2 = Free2 + [['ab']];
  Free2 = [['ab']];
  Bound = [['ab']]; Default = [['ab']]; Library = [['ab']]; Initial = [['ab']]; Tested = [['ab']];
  Ptr = [['ab']]; Assigned = [['ab']]; Branch = [['ab']];
  Twice = [['ab']];
  Done: string = [['ab']]; // TGL: Localized (Don't modify!)
  Split = {$IFDEF A} [['ab']] {$ELSE} 'cd' {$ENDIF};
type
  TA = array[0..Length(Bound)] of Char;
  TForm1 = class(TForm)
    procedure Foo(const A: string = Default; B: Integer);
  const
    OfClass = [['ab']];
  end;
function F: Integer; external Library name 'f';
{$IF Tested = 'ab'} {$IFEND}
var
  V: string = Initial;
resourcestring
  R = [['ab']];
implementation
const Lower = [['ab']]; Twice = [['ab']];
procedure TForm1.Foo;
const Local = [['ab']];
var P: PChar;
begin
  P := Assigned;
  if InCode = Lower then ShowMessage(InCode + Free);
  MessageBox(0, Ptr, nil, 0);
  {$IFDEF A} a {$ELSE} Use(Branch) {$ENDIF};
end;
procedure TForm1.UpdateStrings;
begin
end;
const Late = [['ab']];
end.)"),
              "\n\n\n"
              "one character, so its type is Char\n"
              "element of an array or record constant\n"
              "element of an array or record constant\n"
              "element of an array or record constant\n"
              "its declared type is not a string type\n"
              "its declared type is not a string type\n"
              "part of a larger expression\n"
              "part of a larger expression\n"
              "used where a constant expression is required\n"
              "used where a constant expression is required\n"
              "used where a constant expression is required\n"
              "used where a constant expression is required\n"
              "used where a constant expression is required\n"
              "used where a constant expression is required\n"
              "passed where a PChar is required\n"
              "passed where a PChar is required\n"
              "used in a branch of conditional code that was not followed\n"
              "declared more than once\n"
              "localized already\n"
              "a directive stands inside the declaration\n"
              "constant of a class\n"
              "not in a const section\n"
              "\n"
              "declared more than once\n"
              "local to a routine\n"
              "declared behind UpdateStrings\n");
    const std::string_view unit = "unit U; interface const A = [['ab']]; implementation const B = [['ab']]; end.";
    EXPECT_EQ(Reasons(unit, ""), "\nnot visible to the unit that would assign it\n");
    EXPECT_EQ(Reasons("program P; const A = [['ab']]; begin end.", ""),
              "not visible to the unit that would assign it\n");
}

} // namespace
} // namespace glotta
