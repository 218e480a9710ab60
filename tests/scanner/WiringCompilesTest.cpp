// What is written into a unit compiles, in Delphi mode of Free Pascal, where that is installed.
#include "ide/UnitEdits.h"
#include "scanner/ConstRewrite.h"
#include "scanner/UpdateStringsWiring.h"
#include "support/TempFolder.h"

#include <cstdlib>

namespace glotta {
namespace {

const char* const Unit = R"(unit Unit1;
interface
uses {$IFDEF CLX} QForms {$ELSE} Forms {$ENDIF};
const
  Title = 'It''s'; Caption: AnsiString = 'a' +
    #13#10'b'; // kept
  Letter = 'x';
  Bound = 'abc';
  Names: array[1..2] of string = ('one', Bound);
type
  TForm1 = class(TForm) { the form }
    procedure Show(const Text: string = Bound);
  private
    FTitle: string;
  end;
implementation
{$IFDEF EXTRA}
uses Controls;
{$ENDIF}
procedure TForm1.Show(const Text: string);
  procedure Inner;
  begin
    case Letter of 'x': FTitle := Text; end;
  end;
begin
  Inner;
end;
{$IFDEF DEBUG_UNIT} initialization {$ENDIF}
end.
)";

std::string Localized(std::string text) {
    const auto apply = [&](const TextEdits& edits) { text = ApplyEdits(text, edits); };
    apply(pascal::AddInterfaceUses(text, "Glotta"));
    apply(pascal::AddImplementationUses(text, "StdCtrls"));
    apply(pascal::AddField(text, "TForm1", "Glotta1", "TGlotta"));
    apply(pascal::AddMethod(text, "TForm1", "FormCreate", "Sender: TObject"));
    apply(pascal::AddMethod(text, "TForm1", "Glotta1ChangeLanguage", "Sender: TObject"));
    apply(pascal::AddMethod(text, "TForm1", "UpdateStrings", ""));

    const CallPlaces places(text, false);
    const ConstRewrite rewrite(text, places, "TForm1");
    std::vector<FoundConstant> constants;
    const auto found = [&](std::string_view name, std::string_view literal, std::string_view value) {
        const std::size_t begin = text.find(literal);
        const FoundConstant constant{name, begin, begin + literal.size(), value};
        if (rewrite.WhyNotConst(constant).empty()) constants.push_back(constant);
    };
    found("Title", "'It''s'", "It's");
    found("Caption", "'a' +\r\n    #13#10'b'", "a\r\nb");
    found("Letter", "'x'", "x");
    found("Bound", "'abc'", "abc");
    found("Names", "'one'", "one");

    WiringInput input;
    input.text = text;
    input.className = "TForm1";
    input.component = input.reference = "Glotta1";
    input.replaceMethod = "GetTextOrDefault(";
    for (const FoundConstant& constant : constants)
        input.assignments.push_back({AssignmentTarget(text, "TForm1", constant.name, "Unit1"),
                                     "str" + std::string(constant.name)});
    EXPECT_EQ(input.assignments.size(), 2u);
    TextEdits edits = WireUpdateStrings(input).edits;
    SettingsValues settings;
    settings.EmptyConstsValues = false;
    for (TextEdit& edit : rewrite.Rewrite(constants, settings)) edits.push_back(std::move(edit));
    return ApplyEdits(text, std::move(edits));
}

TEST(UpdateStringsWiring, Compiles) {
    if (std::system("command -v fpc >/dev/null 2>&1") != 0) GTEST_SKIP() << "Free Pascal is not installed";
    const TempFolder folder;
    for (const char* define : {"", "-dEXTRA", "-dDEBUG_UNIT"}) {
        folder.Put("Unit1.pas", "{$J+}" + Localized(ReplaceStr(Unit, "\n", "\r\n")));
        const std::string command = "cd '" + folder.Path().string() +
                                    "' && { fpc -Mdelphi -Fu'" GLOTTA_SOURCE_DIR "/tests/standins' -FU. " + define +
                                    " Unit1.pas > log 2>&1 || { cat log Unit1.pas; false; }; }";
        EXPECT_EQ(std::system(command.c_str()), 0) << define;
    }
}

} // namespace
} // namespace glotta
