// Translation files: GLT (text) and GLB (binary), each with the translations of many forms.
#pragma once
#include "platform/Encoding.h"
#include "runtime/FormTranslations.h"

#include <filesystem>
#include <map>
#include <memory>

namespace glotta {

// A file is binary exactly when its extension is ".glb", in whatever letter case; every other one is text.
bool IsBinaryTranslationFile(std::string_view fileName);

// The field delimiter that a GLT file was written with; `missing` when there is no such file, or when it does
// not tell one.
std::string ReadGLTDelimiter(const std::string& fileName, std::string_view missing,
                             std::optional<Encoding> hint = {});

class TranslationFile;

// The translation files that one command works on: each is read once, kept, and written once, so that the
// cost of handling many forms one by one grows with the forms. A damaged file is an Error at its first use
// and stays as it is.
class TranslationFiles {
public:
    // `hint` is the encoding of GLT files whose bytes do not tell it.
    explicit TranslationFiles(std::optional<Encoding> hint = {});
    ~TranslationFiles();

    // A file that is not there is an Error. Nothing when it does not hold the form.
    const FormTranslations* FindText(const std::string& fileName, std::string_view form);
    const FormTranslations* FindBinary(const std::string& fileName, std::string_view form);
    // The file is written by Flush.
    void PutText(const std::string& fileName, std::string_view delimiter, std::string_view form,
                 FormTranslations translations);
    void PutBinary(const std::string& fileName, std::string_view form, FormTranslations translations);

    // Writes every file that something new was put into since, each atomically. Throws Error.
    void Flush();

private:
    struct Entry {
        std::filesystem::path path;
        std::unique_ptr<TranslationFile> file;
    };
    TranslationFile& Opened(const std::string& fileName, bool binary, bool forWriting);

    std::optional<Encoding> hint_;
    std::map<std::string, Entry> files_; // by kind and path
};

} // namespace glotta
