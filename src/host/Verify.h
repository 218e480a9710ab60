// Proof that opening and saving every unit and form of a tree gives the identical files. Nothing is written.
#pragma once
#include "platform/Encoding.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace glotta {

struct VerifyFailure {
    std::string file, reason;
};

struct VerifyResult {
    std::size_t units = 0, forms = 0;    // read, failures included
    std::vector<VerifyFailure> failures; // in order of file names
};

struct VerifyOptions {
    std::optional<Encoding> told;
    // Called now and then, from one thread: files done and files in all.
    std::function<void(std::size_t, std::size_t)> progress;
};

// Folders are walked for .pas .dpr .dpk .cpp .c .h .hpp and .dfm .xfm .fmx in any letter case; a file that is
// named is checked whatever it is. Throws Error for a path that does not exist. Uses all cores.
VerifyResult VerifyPaths(const std::vector<std::filesystem::path>& paths, const VerifyOptions& options = {});

// Empty when the bytes come back as they are.
std::string VerifyUnit(const std::string& bytes, const std::string& fileName,
                       std::optional<Encoding> told = {});
std::string VerifyForm(const std::string& bytes, const std::string& fileName,
                       std::optional<Encoding> told = {});

} // namespace glotta
