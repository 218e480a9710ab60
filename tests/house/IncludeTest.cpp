// The floor plan: a room includes only rooms on lower floors, never a sibling or a room above.
#include <filesystem>
#include <fstream>
#include <regex>

namespace {

namespace fs = std::filesystem;

const std::map<std::string, int> Floors = {
    {"platform", 0}, {"vcl", 1},     {"settings", 1}, {"runtime", 2}, {"ide", 3},     {"host", 4},    {"translation", 4},
    {"scanner", 5},  {"storage", 6}, {"editors", 6},  {"mainwindow", 7}, {"expert", 8}, {"package", 9}, {"cli", 10},
    {"workbench", 10}};

// The helper library stands beside the house and shares the lexer and the counting of characters with it.
const std::string Beside = "tglotta_common";
const std::vector<std::string> Shared = {"ide/SourceTokens.h", "platform/Text.h"};

const std::map<std::string, std::vector<std::string>> Allowed = {
    {"pugixml.hpp", {"host"}},     {"CLI/CLI.hpp", {"cli"}}, {"nlohmann/json.hpp", {"cli"}}, {"dtl/dtl.hpp", {"cli"}},
    {"pcre2.h", {"tglotta_common"}}};

std::string RoomOf(const std::string& path) { return path.substr(0, path.find('/')); }

// Empty when `room` may include `included`.
std::string WhyNot(const std::string& room, const std::string& included) {
    std::string other = RoomOf(included);
    if (auto library = Allowed.find(included); library != Allowed.end()) {
        const auto& rooms = library->second;
        return std::find(rooms.begin(), rooms.end(), room) == rooms.end() ? "not this room's library" : "";
    }
    if (other == included) // a file of the folder itself, or a system header
        return included.starts_with("Q") && room != "workbench" ? "only the workbench uses Qt" : "";
    if (room == Beside)
        return other == Beside || std::find(Shared.begin(), Shared.end(), included) != Shared.end()
                   ? ""
                   : "stands beside the house";
    auto floor = Floors.find(other);
    if (floor == Floors.end())
        return "";
    if (other == room)
        return "";
    return floor->second < Floors.at(room) ? "" : "not on a lower floor";
}

TEST(House, RoomsIncludeOnlyLowerFloors) {
    fs::path src = fs::path(GLOTTA_SOURCE_DIR) / "src";
    std::regex include(R"(^\s*#\s*include\s*[<"]([^>"]+)[>"])");
    std::string faults;
    int files = 0;
    for (const auto& entry : fs::recursive_directory_iterator(src)) {
        std::string extension = entry.path().extension().string();
        if (extension != ".h" && extension != ".cpp")
            continue;
        std::string path = fs::relative(entry.path(), src).generic_string();
        if (path == "pch.h")
            continue;
        ++files;
        std::string room = RoomOf(path);
        if (room != Beside && !Floors.contains(room)) {
            faults += path + ": no such room\n";
            continue;
        }
        std::ifstream in(entry.path());
        for (std::string line; std::getline(in, line);)
            if (std::smatch match; std::regex_search(line, match, include))
                if (std::string why = WhyNot(room, match[1]); !why.empty())
                    faults += path + " includes " + match[1].str() + ": " + why + "\n";
    }
    EXPECT_EQ(faults, "");
    EXPECT_GT(files, 30);
}

TEST(House, TheTestItselfSeesFaults) {
    EXPECT_EQ(WhyNot("vcl", "settings/SettingsValues.h"), "not on a lower floor");
    EXPECT_EQ(WhyNot("platform", "vcl/FormFile.h"), "not on a lower floor");
    EXPECT_EQ(WhyNot("scanner", "ide/ToolsApi.h"), "");
    EXPECT_EQ(WhyNot("runtime", "pugixml.hpp"), "not this room's library");
    EXPECT_EQ(WhyNot("tglotta_common", "platform/Files.h"), "stands beside the house");
}

// System calls live in platform/ alone.
TEST(House, SystemHeadersOnlyInPlatform) {
    fs::path src = fs::path(GLOTTA_SOURCE_DIR) / "src";
    std::regex systemHeader(R"(^\s*#\s*include\s*<(windows\.h|unistd\.h|sys/[^>]+|fcntl\.h|dlfcn\.h|iconv\.h)>)");
    std::string faults;
    for (const auto& entry : fs::recursive_directory_iterator(src)) {
        std::string path = fs::relative(entry.path(), src).generic_string();
        if (!entry.is_regular_file() || RoomOf(path) == "platform")
            continue;
        std::ifstream in(entry.path());
        for (std::string line; std::getline(in, line);)
            if (std::regex_search(line, systemHeader))
                faults += path + ": " + line + "\n";
    }
    EXPECT_EQ(faults, "");
}

} // namespace
