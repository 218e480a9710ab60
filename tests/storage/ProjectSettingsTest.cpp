#include "storage/Projectsettings.h"

#include "platform/Error.h"
#include "support/TempFolder.h"

namespace glotta {
namespace {

TEST(ProjectSettings, OptionsAreReadAndWrittenByName) {
    TempFolder folder;
    folder.Put("App.gxproj", "; mine\r\n[Settings]\r\nDispatcherForm=Data\r\nDictionaryForceEmpties=1\r\n");
    TGlottaProjectSettings settings;
    EXPECT_EQ(MessageOf([&] { settings.SaveFile(); }), "Storage file not initialized!");
    settings.SetFileName(folder / "App.gxproj");
    EXPECT_EQ(settings.GetOptionValue("DISPATCHERFORM") + settings.GetOptionValue("dictionaryforceempties") +
                  settings.GetOptionValue("DictionaryIgnoreCase") + settings.GetOptionValue("Unknown"),
              "Data10");
    EXPECT_FALSE(settings.GetIsChanged());
    settings.SetOptionValue("Unknown", "x");
    EXPECT_TRUE(settings.GetIsChanged());
    settings.SetOptionValue("DontAskForDictionary", "true");
    settings.SetOptionValue("dispatcherform", "Main");
    settings.SetOptionValue("DictionaryForceEmpties", "0");
    settings.SaveFile();
    EXPECT_FALSE(settings.GetIsChanged());
    EXPECT_EQ(folder.Shown(),
              "App.gxproj=; mine\r\n[Settings]\r\nDispatcherForm=Main\r\nDictionaryForceEmpties=0\r\n"
              "DontAskForDictionary=1\r\n;");
    EXPECT_TRUE(settings.GetOptionFlag("DontAskForDictionary"));
}

TEST(ProjectSettings, AMissingFileIsEmptyUntilSaved) {
    TempFolder folder;
    TGlottaProjectSettings settings;
    settings.SetFileName(folder / "sub/../New.gxproj");
    EXPECT_TRUE(settings.GetFileName().is_absolute());
    EXPECT_EQ(settings.GetOptionValue("DefaultDictionary"), "");
    EXPECT_EQ(folder.Shown(), "");
    EXPECT_EQ(ProjectOptions().size(), 12U);
}

} // namespace
} // namespace glotta
