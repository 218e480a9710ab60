// End-to-end cases as folders: tests/cases/<feature>/<case>/ holds
//   input/ or input.from   the files to work on, or the folder of the project that holds them
//   command                command lines of glotta, one a line, run in a copy of the input
//   expected.out           what they print, with each exit code
//   expected/              the files that differ from the input afterwards; all others must be untouched
// With GLOTTA_UPDATE_CASES=1 the expectations are written instead of compared.
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace {

namespace fs = std::filesystem;

std::string Slurp(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

std::map<std::string, std::string> Tree(const fs::path& root) {
    std::map<std::string, std::string> files;
    if (fs::exists(root))
        for (const auto& entry : fs::recursive_directory_iterator(root))
            if (entry.is_regular_file())
                files[fs::relative(entry.path(), root).generic_string()] = Slurp(entry.path());
    return files;
}

std::string Replaced(std::string text, const std::string& from, const std::string& to) {
    for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size())
        text.replace(at, from.size(), to);
    return text;
}

std::string RunGlotta(const fs::path& folder, const std::string& arguments) {
    std::string command = "cd '" + folder.string() + "' && GLOTTA_REGISTRY='" + folder.string() + ".reg' '" GLOTTA_BIN_DIR
                          "/glotta' " + arguments + " 2>&1";
    FILE* pipe = popen(command.c_str(), "r");
    if (!pipe)
        return "cannot run\n";
    std::string output;
    char piece[4096];
    while (std::size_t size = fread(piece, 1, sizeof piece, pipe))
        output.append(piece, size);
    int status = pclose(pipe);
    std::ostringstream all;
    all << "$ glotta " << arguments << "\n" << Replaced(output, folder.string(), ".") << "[exit "
        << (WIFEXITED(status) ? WEXITSTATUS(status) : -1) << "]\n";
    return all.str();
}

class Case : public testing::TestWithParam<fs::path> {};

TEST_P(Case, GivesWhatIsExpected) {
    const fs::path& folder = GetParam();
    fs::path input = folder / "input";
    if (fs::exists(folder / "input.from")) {
        std::string from = Slurp(folder / "input.from");
        from.erase(from.find_last_not_of("\r\n ") + 1);
        input = fs::path(GLOTTA_SOURCE_DIR) / from;
    }
    fs::path work = fs::path(testing::TempDir()) / ("glotta-case-" + folder.parent_path().filename().string() + "-" +
                                                    folder.filename().string());
    fs::remove_all(work);
    fs::remove(work.string() + ".reg");
    fs::copy(input, work, fs::copy_options::recursive);

    std::string output;
    std::istringstream commands(Slurp(folder / "command"));
    for (std::string line; std::getline(commands, line);)
        if (!line.empty())
            output += RunGlotta(work, line);

    std::map<std::string, std::string> expected = Tree(input), actual = Tree(work);
    if (std::getenv("GLOTTA_UPDATE_CASES")) {
        std::ofstream(folder / "expected.out", std::ios::binary) << output;
        fs::remove_all(folder / "expected");
        for (const auto& [name, bytes] : actual)
            if (!expected.contains(name) || expected[name] != bytes) {
                fs::create_directories((folder / "expected" / name).parent_path());
                std::ofstream(folder / "expected" / name, std::ios::binary) << bytes;
            }
        GTEST_SKIP() << "expectations written";
    }
    EXPECT_EQ(output, Slurp(folder / "expected.out"));
    for (auto& [name, bytes] : Tree(folder / "expected"))
        expected[name] = bytes;
    EXPECT_EQ(actual.size(), expected.size());
    for (const auto& [name, bytes] : expected)
        EXPECT_EQ(actual[name], bytes) << name;
    fs::remove_all(work);
    fs::remove(work.string() + ".reg");
    fs::remove(work.string() + ".reg.lock");
}

std::vector<fs::path> Cases() {
    std::vector<fs::path> cases;
    for (const auto& entry : fs::recursive_directory_iterator(fs::path(GLOTTA_SOURCE_DIR) / "tests/cases"))
        if (entry.path().filename() == "command")
            cases.push_back(entry.path().parent_path());
    std::sort(cases.begin(), cases.end());
    return cases;
}

std::string CaseName(const testing::TestParamInfo<fs::path>& info) {
    std::string name = info.param.parent_path().filename().string() + "_" + info.param.filename().string();
    std::replace_if(name.begin(), name.end(), [](unsigned char c) { return !std::isalnum(c); }, '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Folders, Case, testing::ValuesIn(Cases()), CaseName);

} // namespace
