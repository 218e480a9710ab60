// The text translation file: sections "[Form.Kind]" with a line for each record; docs/formats.md has the
// rules.
#pragma once
#include "platform/Encoding.h"
#include "runtime/GltSections.h"
#include "runtime/GltSyntax.h"
#include "runtime/TranslationFile.h"

#include <array>

namespace glotta {

// Lines that nobody changes stay as they were found: other sections, comments, order.
class GltFile : public TranslationFile {
public:
    // No bytes: a new file. Throws Error "file: line N: reason".
    GltFile(const std::string& fileName, std::string_view bytes, std::optional<Encoding> hint = {});

    // All texts of the file are written with it from now on. Throws Error for a delimiter that no line can
    // hold.
    void SetDelimiter(std::string_view delimiter);
    // As the file tells it.
    const std::optional<std::string>& Delimiter() const { return delimiter_; }

    // UTF-8 with byte order mark.
    std::string ToBytes() override;

private:
    // Of one form: its languages, then the twelve kinds.
    using FormSections = std::array<std::optional<GltSections::Place>, 1 + StringsTypeCount>;

    void Register(GltSections::Place section);
    void ReadOptions();
    void ReadForm(std::size_t form);
    Languages ReadLanguages(const GltSection& section) const;
    void ReadRecords(const GltSection& section, std::vector<std::string>& records) const;
    void WriteOptions();
    void WriteForm(std::size_t form);

    std::string fileName_;
    GltSections sections_;
    std::optional<GltSections::Place> options_;
    std::vector<FormSections> formSections_; // in the order of the forms
    GltSyntax syntax_;
    std::optional<std::string> delimiter_;
    bool optionsChanged_ = false;
};

} // namespace glotta
