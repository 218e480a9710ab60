#include "host/Verify.h"

#include "host/UnitBuffer.h"
#include "platform/Error.h"
#include "platform/Files.h"
#include "runtime/CustomLang.h"
#include "vcl/Component.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <thread>

namespace glotta {
namespace {

namespace fs = std::filesystem;

enum class Kind : unsigned char { Other, Unit, Form };

Kind KindOf(const fs::path& file) {
    static constexpr std::array<std::string_view, 7> Units = {".pas", ".dpr", ".dpk", ".cpp",
                                                              ".c",   ".h",   ".hpp"};
    static constexpr std::array<std::string_view, 3> Forms = {".dfm", ".xfm", ".fmx"};
    const std::string extension = LowerExtension(PathText(file));
    if (std::find(Forms.begin(), Forms.end(), extension) != Forms.end()) return Kind::Form;
    return std::find(Units.begin(), Units.end(), extension) != Units.end() ? Kind::Unit : Kind::Other;
}

struct Item {
    fs::path file;
    Kind kind;
    std::string reason; // why it failed, empty when it did not
};

void Walk(const fs::path& folder, std::vector<Item>& items) {
    std::error_code failed;
    fs::recursive_directory_iterator at(folder, failed);
    while (!failed && at != fs::recursive_directory_iterator()) {
        std::error_code ignored;
        const Kind kind = KindOf(at->path());
        if (kind != Kind::Other && at->is_regular_file(ignored)) items.push_back({at->path(), kind, {}});
        at.increment(failed);
    }
    if (failed) throw Error(PathText(folder) + ": " + failed.message());
}

std::vector<Item> Collect(const std::vector<fs::path>& paths) {
    std::vector<Item> items;
    for (const fs::path& path : paths) {
        std::error_code ignored;
        if (fs::is_directory(path, ignored))
            Walk(path, items);
        else if (fs::exists(path, ignored))
            items.push_back({path, KindOf(path) == Kind::Form ? Kind::Form : Kind::Unit, {}});
        else
            throw Error(PathText(path) + ": no such file or folder");
    }
    std::sort(items.begin(), items.end(), [](const Item& a, const Item& b) { return a.file < b.file; });
    const auto same = [](const Item& a, const Item& b) { return a.file == b.file; };
    items.erase(std::unique(items.begin(), items.end(), same), items.end());
    return items;
}

std::string Check(const Item& item, std::optional<Encoding> told) {
    const std::string name = PathText(item.file);
    try {
        const std::string bytes = ReadFile(item.file);
        return item.kind == Kind::Form ? VerifyForm(bytes, name, told) : VerifyUnit(bytes, name, told);
    } catch (const std::exception& error) {
        const std::string_view reason = error.what();
        const std::string prefix = name + ": ";
        return std::string(reason.starts_with(prefix) ? reason.substr(prefix.size()) : reason);
    }
}

std::string Compare(const std::string& before, const std::string& after) {
    if (before == after) return {};
    const auto end = std::min(before.size(), after.size());
    const auto at = std::mismatch(before.begin(), before.begin() + std::ptrdiff_t(end), after.begin()).first;
    return "saved unchanged, it would differ from byte " + std::to_string(at - before.begin()) + " on";
}

} // namespace

std::string VerifyUnit(const std::string& bytes, const std::string& fileName, std::optional<Encoding> told) {
    const UnitBuffer buffer(DecodeUnit(bytes, told));
    return Compare(bytes, EncodeUnit(buffer.Unit(), fileName));
}

std::string VerifyForm(const std::string& bytes, const std::string& fileName, std::optional<Encoding> told) {
    const bool hasCodePage = told && told->kind == EncodingKind::CodePage;
    FormFile form = FormFile::Parse(bytes, fileName, hasCodePage ? told->codePage : Encoding().codePage);
    ComponentTree tree(form, {});
    tree.BeforeWrite();
    return Compare(bytes, form.Write());
}

VerifyResult VerifyPaths(const std::vector<fs::path>& paths, const VerifyOptions& options) {
    RegisterGlottaClasses();
    std::vector<Item> items = Collect(paths);
    std::atomic<std::size_t> next = 0, done = 0;
    const auto work = [&](bool tells) {
        for (std::size_t index; (index = next++) < items.size();) {
            items[index].reason = Check(items[index], options.told);
            const std::size_t count = ++done;
            if (tells && options.progress) options.progress(count, items.size());
        }
    };
    std::vector<std::thread> helpers;
    for (unsigned count = std::max(1u, std::thread::hardware_concurrency()); count > 1; --count)
        helpers.emplace_back(work, false);
    work(true);
    for (std::thread& helper : helpers)
        helper.join();

    VerifyResult result;
    for (Item& item : items) {
        ++(item.kind == Kind::Form ? result.forms : result.units);
        if (!item.reason.empty()) result.failures.push_back({PathText(item.file), std::move(item.reason)});
    }
    return result;
}

} // namespace glotta
