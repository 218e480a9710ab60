// The rewritten Pascal sample compiles: in Delphi mode, against the stand-in units of tests/standins.
#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace {

namespace fs = std::filesystem;

bool Succeeds(const fs::path& folder, const std::string& command) {
    return std::system(("cd '" + folder.string() + "' && " + command).c_str()) == 0;
}

// What the resource directives of the sample name; the compiler only looks whether it is there.
void AddResources(const fs::path& folder) {
    std::vector<fs::path> forms;
    for (const auto& entry : fs::directory_iterator(folder))
        if (entry.path().extension() == ".dfm")
            forms.push_back(entry.path());
    for (fs::path form : forms)
        std::ofstream(form.replace_extension(".DFM"));
}

TEST(Compile, RewrittenSample) {
    if (!Succeeds(".", "command -v fpc >/dev/null 2>&1"))
        GTEST_SKIP() << "Free Pascal is not installed";
    fs::path work = fs::path(testing::TempDir()) / "glotta-compile";
    fs::remove_all(work);
    fs::copy(fs::path(GLOTTA_SOURCE_DIR) / "samples/delphi/OrderDesk", work, fs::copy_options::recursive);
    std::string glotta = "GLOTTA_REGISTRY='" + work.string() + ".reg' '" GLOTTA_BIN_DIR "/glotta' ";
    for (const char* mode : {"", "--const "})
        ASSERT_TRUE(Succeeds(work, glotta + "replace --all " + mode +
                                       "--strings-form MainForm --apply OrderDesk.dpr >replace.out 2>&1"));
    AddResources(work);
    fs::rename(work / "Units/totals.pas", work / "Units/Totals.pas"); // the compiler minds letter case
    for (const char* unit : {"Main", "DataMod", "CustomerEdit", "Receipt", "About", "Units/Totals"})
        EXPECT_TRUE(Succeeds(work, std::string("fpc -Mdelphi -Sh -Cn -FUUnits -FuUnits -Fu'" GLOTTA_SOURCE_DIR
                                               "/tests/standins' ") +
                                       unit + ".pas >compile.out 2>&1"))
            << unit << "\n"
            << std::ifstream(work / "compile.out").rdbuf();
    fs::remove_all(work);
    fs::remove(work.string() + ".reg");
}

} // namespace
