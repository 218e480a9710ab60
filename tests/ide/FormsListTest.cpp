#include "ide/FormsList.h"
#include "platform/Error.h"
#include "support/FakeIde.h"
#include "support/TempFolder.h"

namespace glotta {
namespace {

TEST(FormsList, EveryFormOfTheProjectWithItsFirstLocalizationComponent) {
    const TempFolder folder;
    FakeProject project("/p/App.dpr", "App");
    const auto add = [&](const std::string& name, const std::string& form) {
        IOTAModuleInfo info;
        info.unitName = "U" + name;
        info.formName = name;
        info.fileName = name + ".pas";
        if (!form.empty()) info.formFile = PathText(folder.Put(name + ".dfm", form));
        project.infos.push_back(info);
    };
    const std::string component = "    LangNames.Strings = (\r\n      'English'\r\n      'Polski')\r\n"
                                  "    NumberOfLanguages = 2\r\n  end\r\n";
    add("Plain", "object Plain: TPlain\r\n  Caption = 'TGlotta'\r\n  object A: TLabel\r\n  end\r\nend\r\n");
    add("NoForm", "");
    add("Two", "object Two: TTwo\r\n  object P: TPanel\r\n    object rt: TGLOTTART\r\n    end\r\n  end\r\n"
               "  object Glotta1: TGlotta\r\n" +
                   component + "end\r\n");
    add("One", "object One: TOne\r\n  object Glotta1: TGlotta\r\n" + component + "end\r\n");
    add("Framed",
        "object Framed: TFramed\r\n  inline F: TF\r\n    inherited Glotta1: TGlotta\r\n    end\r\n  end\r\n"
        "end\r\n");
    add("Broken", "object Broken: TBroken\r\n  Caption = \r\n");

    std::vector<std::string> errors;
    std::string text;
    for (const FormsListItem& item : ListProjectForms(project, errors).items)
        text += item.formName + " " + item.unitName + " " + item.fileName + " " + item.languages + " [" +
                item.glotta + "] " + std::to_string(item.imageIndex) + "\n";
    EXPECT_EQ(text, "Plain UPlain Plain.pas 0 [] 0\n"
                    "Two UTwo Two.pas 1 [TGLOTTART] 1\n"
                    "One UOne One.pas 2 [TGlotta] 1\n"
                    "Framed UFramed Framed.pas 0 [] 0\n"
                    "Broken UBroken Broken.pas 0 [] 0\n");
    ASSERT_EQ(errors.size(), 1u);
    EXPECT_NE(errors[0].find("Broken.dfm: line 3: "), std::string::npos) << errors[0];
    EXPECT_THROW(AnalyzeFormFile("/nowhere/Form.dfm"), Error);
}

} // namespace
} // namespace glotta
