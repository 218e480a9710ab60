#include "cli/FileChanges.h"

#include "cli/UnifiedDiff.h"
#include "platform/Encoding.h"
#include "platform/Files.h"
#include "vcl/FormFile.h"

namespace glotta {

namespace {

std::string Readable(const std::string& bytes, const std::string& shown, std::optional<Encoding> hint) {
    std::string extension = LowerExtension(shown);
    if (extension == ".dfm" || extension == ".xfm") {
        FormFile form = FormFile::Parse(bytes, shown);
        if (form.IsBinary())
            return std::move(form).AsText();
    }
    return Decode(bytes, DetectEncoding(bytes, {}, hint));
}

} // namespace

std::string ChangeText(const FileChange& change, const std::string& shown, std::optional<Encoding> hint) {
    return UnifiedDiff(shown, Readable(change.oldBytes, shown, hint), Readable(change.newBytes, shown, hint));
}

std::string FilesText(std::size_t files, bool applied) {
    return std::to_string(files) + (files == 1 ? " file " : " files ") +
           (applied ? "written\n" : "to change (--apply writes them)\n");
}

} // namespace glotta
