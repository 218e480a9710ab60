#include "storage/ExternalFiles.h"

#include <gtest/gtest.h>

namespace glotta {
namespace {

struct Kept : TgxExternalFiles {
    std::string saved;
    void Save() override { saved += ProjectName() + ":" + std::to_string(Files().Count()) + " "; }
};

TEST(ExternalFiles, AreSavedWheneverThereAreSomeAndTheyChange) {
    Kept list;
    list.SetProjectName("App.dpr"); // without a file
    list.AddFile("a.pas");
    list.SetProjectName("App.dpr"); // the same
    list.SetProjectName("Other.dpr");
    list.loading = true;
    list.AddFile("b.pas");
    list.loading = false;
    list.SetFiles(TStringList({"c.pas"}));
    list.Clear();
    list.SetFiles({});
    EXPECT_EQ(list.saved, "App.dpr:1 Other.dpr:1 Other.dpr:1 ");
}

} // namespace
} // namespace glotta
