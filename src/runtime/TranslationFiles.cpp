#include "runtime/TranslationFiles.h"

#include "platform/FileKey.h"
#include "platform/Files.h"
#include "runtime/GlbFile.h"
#include "runtime/GltFile.h"

namespace glotta {

bool IsBinaryTranslationFile(std::string_view fileName) {
    return LowerExtension(fileName) == ".glb";
}

std::string ReadGLTDelimiter(const std::string& fileName, std::string_view missing,
                             std::optional<Encoding> hint) {
    const std::filesystem::path path = PathFromText(fileName);
    std::error_code failed;
    if (!std::filesystem::exists(path, failed)) return std::string(missing);
    return GltFile(fileName, ReadFile(path), hint).Delimiter().value_or(std::string(missing));
}

TranslationFiles::TranslationFiles(std::optional<Encoding> hint) : hint_(hint) {}
TranslationFiles::~TranslationFiles() = default;

// The file as it is on disk, read at its first use; one that is not there is empty when it is to be written.
TranslationFile& TranslationFiles::Opened(const std::string& fileName, bool binary, bool forWriting) {
    const std::filesystem::path path = PathFromText(fileName);
    Entry& entry = files_[(binary ? "B" : "T") + FileKey(path)];
    if (entry.file) return *entry.file;
    std::error_code failed;
    const bool isNew = forWriting && !std::filesystem::exists(path, failed);
    std::unique_ptr<TranslationFile> file;
    if (binary)
        file = isNew ? std::make_unique<GlbFile>() : std::make_unique<GlbFile>(fileName, ReadFile(path));
    else
        file = std::make_unique<GltFile>(fileName, isNew ? std::string() : ReadFile(path), hint_);
    entry = {path, std::move(file)};
    return *entry.file;
}

const FormTranslations* TranslationFiles::FindText(const std::string& fileName, std::string_view form) {
    return Opened(fileName, false, false).Find(form);
}

const FormTranslations* TranslationFiles::FindBinary(const std::string& fileName, std::string_view form) {
    return Opened(fileName, true, false).Find(form);
}

void TranslationFiles::PutText(const std::string& fileName, std::string_view delimiter, std::string_view form,
                               FormTranslations translations) {
    GltFile& file = static_cast<GltFile&>(Opened(fileName, false, true));
    file.SetDelimiter(delimiter);
    file.Put(form, std::move(translations));
}

void TranslationFiles::PutBinary(const std::string& fileName, std::string_view form,
                                 FormTranslations translations) {
    Opened(fileName, true, true).Put(form, std::move(translations));
}

void TranslationFiles::Flush() {
    for (auto& [key, entry] : files_)
        if (entry.file && entry.file->Changed()) {
            WriteFileAtomically(entry.path, entry.file->ToBytes());
            entry.file->SetUnchanged();
        }
}

} // namespace glotta
