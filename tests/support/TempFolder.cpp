#include "support/TempFolder.h"

#include <atomic>
#include <fstream>
#include <map>
#include <random>

namespace glotta {
namespace fs = std::filesystem;

TempFolder::TempFolder() {
    static std::atomic<int> counter{0};
    static const unsigned program = std::random_device()();
    path_ = fs::temp_directory_path() /
            ("glotta-test-" + std::to_string(program) + "-" + std::to_string(counter++));
    fs::create_directories(path_);
}

TempFolder::~TempFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

fs::path TempFolder::Put(std::string_view name, std::string_view bytes) const {
    const fs::path file = *this / name;
    fs::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << bytes;
    return file;
}

std::string TempFolder::Shown() const {
    std::map<std::string, std::string> found;
    for (const auto& entry : fs::recursive_directory_iterator(path_))
        if (entry.is_regular_file())
            found[PathText(entry.path().lexically_relative(path_))] = ReadFile(entry.path());
    std::string shown;
    for (const auto& [name, bytes] : found)
        shown += name + "=" + bytes + ";";
    return shown;
}

} // namespace glotta
