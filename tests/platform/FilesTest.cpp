#include "platform/Files.h"
#include "support/TempFolder.h"

#include <thread>

using namespace glotta;
namespace fs = std::filesystem;

namespace {

class Files : public testing::Test {
protected:
    fs::path Put(const std::string& name, const std::string& bytes) { return folder.Put(name, bytes); }
    std::string Shown() { return folder.Shown(); }

    TempFolder folder;
    const fs::path dir = folder.Path();
};

} // namespace

TEST_F(Files, AReplacedFileKeepsModeAndLink) {
    const fs::path real = Put("sub/real.pas", "old");
    fs::permissions(real, fs::perms(0640));
    fs::create_symlink("sub/real.pas", dir / "link.pas");
    WriteFileAtomically(dir / "link.pas", std::string("new\0", 4));
    EXPECT_TRUE(fs::is_symlink(dir / "link.pas"));
    EXPECT_EQ(ReadFile(real), std::string("new\0", 4));
    EXPECT_EQ(fs::status(real).permissions(), fs::perms(0640));

    fs::create_symlink("fresh.pas", dir / "dangling.pas");
    WriteFileAtomically(dir / "dangling.pas", "made");
    EXPECT_EQ(ReadFile(dir / "fresh.pas"), "made");
}

TEST_F(Files, ATransactionIsAllOrNothing) {
    Put("a", "1");
    Put("b", "2");
    FileTransaction good;
    good.Add(dir / "a", "overtaken");
    good.Add(dir / "b", "two");
    good.Add(dir / "c", "three");
    good.Add(dir / "." / "a", "one");
    good.Commit();
    EXPECT_EQ(Shown(), "a=one;b=two;c=three;");

    fs::create_directory(dir / "z"); // replacing it fails after the others were replaced
    for (const char* bad : {"z", "missing/x"}) {
        FileTransaction failing;
        failing.Add(dir / bad, "");
        failing.Add(dir / "a", "lost");
        failing.Add(dir / "new", "lost");
        EXPECT_TRUE(MessageOf([&] { failing.Commit(); }).starts_with((dir / bad).string())) << bad;
        FileTransaction other;
        other.Add(dir / "a", "lost");
        other.Add(dir / "new", "lost");
        other.Add(dir / bad, "");
        EXPECT_NE(MessageOf([&] { other.Commit(); }), "no error");
        EXPECT_EQ(Shown(), "a=one;b=two;c=three;");
    }
}

TEST_F(Files, ErrorsNameTheFile) {
    EXPECT_EQ(MessageOf([&] { ReadFile(dir / "none"); }),
              (dir / "none").string() + ": No such file or directory");
    EXPECT_EQ(MessageOf([&] { ReadFile(dir); }), dir.string() + ": Is a directory");
    EXPECT_EQ(MessageOf([&] { WriteFileAtomically(dir / "none" / "a", ""); }),
              (dir / "none" / "a").string() + ": No such file or directory");
}

TEST_F(Files, WrittenPathsResolveInAnyCase) {
    Put("Units/Main.PAS", "");
    Put("Units/main.dfm", "");
    Put("Proj/App.dpr", "");
    Put("Proj/x.pas", "");
    Put("Proj/X.pas", "");
    PathResolver resolver;
    const auto shown = [&](const char* written) {
        const auto found = resolver.Resolve(dir / "Proj", written);
        return found ? found->lexically_relative(dir).generic_string() : "-";
    };
    EXPECT_EQ(shown("..\\units\\MAIN.pas"), "Units/Main.PAS");
    EXPECT_EQ(shown("../UNITS/.//main.dfm"), "Units/main.dfm");
    EXPECT_EQ(shown("app.DPR"), "Proj/App.dpr");
    EXPECT_EQ(shown("x.pas"), "Proj/x.pas");
    EXPECT_EQ(shown("X.PAS"), "Proj/X.pas");
    EXPECT_EQ(shown("App.dpr\\deeper"), "-");
    EXPECT_EQ(shown("nothing\\..\\App.dpr"), "-");
    EXPECT_EQ(shown("C:\\Work\\App.dpr"), "-");
    EXPECT_EQ(shown(""), "Proj");
    EXPECT_EQ(resolver.Resolve("/", (dir / "UNITS").string())->filename(), "Units");
    EXPECT_EQ(PathResolver::Native("a/b", "..\\New\\..\\..\\C.pas"), fs::path("C.pas"));
    EXPECT_EQ(PathResolver::Native("", "..\\C.pas"), fs::path("../C.pas"));
    EXPECT_EQ(PathResolver::Native("a", "\\New\\C.pas"), fs::path("/New/C.pas"));
    EXPECT_EQ(PathResolver::Native("a", "C:\\New\\..\\C.pas"), fs::path("C:/C.pas"));
}

TEST_F(Files, OneHolderOfALockAtATime) {
    const fs::path counter = Put("counter", "0");
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back([&] {
            for (int j = 0; j < 10; ++j) {
                const FileLock lock(counter);
                WriteFileAtomically(counter, std::to_string(std::stoi(ReadFile(counter)) + 1));
            }
        });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(ReadFile(counter), "40");
}

TEST(Paths, NamesCompareAsOnWindows) {
    EXPECT_TRUE(SameFileName("C:\\Job\\ÜNIT1.PAS", "c:/job/ünit1.pas"));
    EXPECT_EQ(LowerExtension("dir.x\\Unit1.PAS") + LowerExtension("dir.x/none") + LowerExtension("a.b.Dfm"),
              ".pas.dfm");
}
