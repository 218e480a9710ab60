// A folder of its own for one test, removed at the end.
#pragma once
#include "platform/Error.h"
#include "platform/Files.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace glotta {

class TempFolder {
public:
    TempFolder();
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    const std::filesystem::path& Path() const { return path_; }
    std::filesystem::path operator/(std::string_view name) const { return path_ / PathFromText(name); }
    // Writes the file, and the folders it needs; gives its path.
    std::filesystem::path Put(std::string_view name, std::string_view bytes) const;
    // All files in order as "name=content;".
    std::string Shown() const;

private:
    std::filesystem::path path_;
};

// The message of the Error that `act` ends with; "no error" when there is none.
template <class Act> std::string MessageOf(Act act) {
    try {
        act();
    } catch (const Error& error) {
        return error.what();
    }
    return "no error";
}

} // namespace glotta
