#include "runtime/GltFile.h"

#include "platform/Error.h"
#include "platform/IntText.h"
#include "platform/Text.h"

namespace glotta {
namespace {

constexpr std::string_view OptionsName = "Options", DelimiterName = "Delimiter", EscapeName = "Escape";
constexpr std::string_view CountName = "NumberOfLanguages", ActiveName = "ActiveLanguage",
                           LanguageName = "Language";

// The sections of a form, behind the dot: its languages, then the kinds of records.
std::string_view SectionKind(std::size_t section) {
    return section == 0 ? "Languages" : StringsPropertyName(static_cast<TStringsType>(section - 1));
}

std::optional<std::size_t> SectionOfKind(std::string_view kind) {
    for (std::size_t section = 0; section <= StringsTypeCount; ++section)
        if (SameText(SectionKind(section), kind)) return section;
    return {};
}

// The position that "Language3" tells.
std::optional<int> LanguagePosition(std::string_view name) {
    if (!StartsWithText(name, LanguageName)) return {};
    const std::string_view digits = name.substr(LanguageName.size());
    if (digits.empty() || digits[0] == '0' || digits.find_first_not_of("0123456789") != digits.npos)
        return {};
    return StrToInt(digits);
}

bool IsLanguageEntry(const GltLine& line) {
    return line.hasValue &&
           (SameText(line.name, CountName) || SameText(line.name, ActiveName) || LanguagePosition(line.name));
}

bool IsOptionEntry(const GltLine& line) {
    return line.hasValue && (SameText(line.name, DelimiterName) || SameText(line.name, EscapeName));
}

[[noreturn]] void Fail(const std::string& fileName, std::size_t line, const std::string& reason) {
    throw Error(fileName + ": line " + std::to_string(line) + ": " + reason);
}

// Runs `read`; what is wrong gets its place.
template <class Read> auto At(const std::string& fileName, std::size_t line, const Read& read) {
    try {
        return read();
    } catch (const Error& error) {
        Fail(fileName, line, error.what());
    }
}

GltSection::Entry NumberEntry(std::string_view name, int value) {
    return {std::string(name), std::string(name) + "=" + std::to_string(value)};
}

} // namespace

GltFile::GltFile(const std::string& fileName, std::string_view bytes, std::optional<Encoding> hint)
    : fileName_(fileName), sections_(Decode(bytes, DetectEncoding(bytes, {}, hint))) {
    for (auto section = sections_.All().begin(); section != sections_.End(); ++section)
        Register(section);
    ReadOptions();
    for (std::size_t form = 0; form < formSections_.size(); ++form)
        ReadForm(form);
}

// --- reading

void GltFile::Register(GltSections::Place section) {
    const auto take = [&](std::optional<GltSections::Place>& place) {
        if (place) Fail(fileName_, section->HeaderLine(), "section [" + section->name + "] is there twice");
        place = section;
    };
    const std::string_view name = section->name;
    if (SameText(name, OptionsName)) take(options_);
    const std::size_t dot = name.rfind('.');
    if (dot == name.npos) return;
    const auto kind = SectionOfKind(name.substr(dot + 1));
    if (!kind) return;
    const std::string form =
        At(fileName_, section->HeaderLine(), [&] { return ReadGltName(Trim(name.substr(0, dot))); });
    const std::size_t place = PlaceOf(form);
    formSections_.resize(Forms().size());
    take(formSections_[place][*kind]);
}

void GltFile::ReadOptions() {
    if (!options_) return;
    std::optional<GltLine> delimiter;
    const std::vector<GltLine> lines = (*options_)->Lines();
    for (const GltLine& line : lines) {
        if (!IsOptionEntry(line)) continue;
        if (SameText(line.name, EscapeName))
            syntax_.escape = line.value;
        else if (!delimiter)
            delimiter = line;
    }
    const std::size_t place = delimiter ? delimiter->number : (*options_)->HeaderLine();
    if (CharCount(syntax_.escape) != 1) Fail(fileName_, place, "Escape must be one character");
    if (delimiter && !delimiter->value.empty())
        syntax_.delimiter =
            *(delimiter_ = At(fileName_, place, [&] { return syntax_.ReadText(delimiter->value); }));
    if (syntax_.delimiter.empty() || syntax_.delimiter.find(syntax_.escape) != std::string::npos)
        Fail(fileName_, place, "Delimiter must not be empty nor hold the Escape character");
}

void GltFile::ReadForm(std::size_t form) {
    const FormSections& sections = formSections_[form];
    if (!sections[0]) {
        const auto first =
            std::find_if(sections.begin(), sections.end(), [](const auto& one) { return one.has_value(); });
        Fail(fileName_, (**first)->HeaderLine(),
             "form " + Forms()[form].name + " has no section with its languages");
    }
    FormTranslations& translations = Forms()[form].translations;
    translations.languages = ReadLanguages(**sections[0]);
    for (std::size_t kind = 1; kind < sections.size(); ++kind)
        if (sections[kind]) ReadRecords(**sections[kind], translations.records[kind - 1]);
}

Languages GltFile::ReadLanguages(const GltSection& section) const {
    Languages languages;
    std::map<int, std::string> names;
    std::optional<int> count;
    const auto number = [&](const GltLine& line, int most) {
        const auto value = StrToInt(line.value);
        if (!value || *value < 1 || *value > most)
            Fail(fileName_, line.number,
                 std::string(line.name) + " must be a number from 1 to " + std::to_string(most));
        return *value;
    };
    for (const GltLine& line : section.Lines()) {
        if (!IsLanguageEntry(line)) continue;
        if (SameText(line.name, CountName))
            count = number(line, Languages::Max);
        else if (SameText(line.name, ActiveName))
            languages.active = number(line, Languages::Max);
        else
            names[*LanguagePosition(line.name)] =
                At(fileName_, line.number, [&] { return syntax_.ReadText(line.value); });
    }
    const auto fail = [&](const std::string& reason) { Fail(fileName_, section.HeaderLine(), reason); };
    if (!count) fail(std::string(CountName) + " is missing");
    languages.count = *count;
    if (languages.active > languages.count) fail("the active language is none of the languages");
    for (auto& [position, name] : names) {
        if (position != static_cast<int>(languages.names.size()) + 1) break;
        languages.names.push_back(std::move(name));
    }
    const int read = static_cast<int>(languages.names.size());
    if (read < languages.count || read < static_cast<int>(names.size()))
        fail(std::string(LanguageName) + std::to_string(read + 1) + " is missing");
    return languages;
}

void GltFile::ReadRecords(const GltSection& section, std::vector<std::string>& records) const {
    for (const GltLine& line : section.Lines()) {
        if (line.isComment || line.isBlank) continue;
        if (!line.hasValue) Fail(fileName_, line.number, "there is no \"=\" between identifier and texts");
        records.push_back(At(fileName_, line.number, [&] { return syntax_.Read(line.name, line.value); }));
    }
}

// --- writing

void GltFile::SetDelimiter(std::string_view delimiter) {
    if (delimiter_ == delimiter) return;
    syntax_ = GltSyntax::For(delimiter);
    delimiter_ = delimiter;
    for (Form& form : Forms())
        form.changed = true;
    optionsChanged_ = true;
    SetChanged();
}

void GltFile::WriteOptions() {
    if (!options_) options_ = sections_.Insert(std::next(sections_.All().begin()), std::string(OptionsName));
    std::vector<GltSection::Entry> entries;
    const auto add = [&](std::string_view name, const std::string& value) {
        entries.push_back({std::string(name), std::string(name) + "=" + value});
    };
    add(DelimiterName, syntax_.Text(syntax_.delimiter));
    if (syntax_.escape != GltSyntax().escape) add(EscapeName, syntax_.escape);
    (*options_)->SetEntries(entries, sections_.LineEnd(), IsOptionEntry);
    optionsChanged_ = false;
}

void GltFile::WriteForm(std::size_t form) {
    const Form& data = Forms()[form];
    const Languages& languages = data.translations.languages;
    formSections_.resize(Forms().size());
    GltSections::Place next = sections_.End();
    const auto write = [&](std::size_t kind, const std::vector<GltSection::Entry>& entries,
                           const std::function<bool(const GltLine&)>& isEntry) {
        std::optional<GltSections::Place>& section = formSections_[form][kind];
        if (!section && entries.empty()) return;
        if (!section)
            section = sections_.Insert(next, GltName(data.name) + "." + std::string(SectionKind(kind)));
        (*section)->SetEntries(entries, sections_.LineEnd(), isEntry);
        next = std::next(*section);
        if (!entries.empty() || (*section)->HasComments()) return;
        sections_.Erase(*section);
        section.reset();
    };
    std::vector<GltSection::Entry> entries{NumberEntry(CountName, languages.count),
                                           NumberEntry(ActiveName, languages.active)};
    for (std::size_t i = 0; i < languages.names.size(); ++i) {
        const std::string name = std::string(LanguageName) + std::to_string(i + 1);
        entries.push_back({name, name + "=" + syntax_.Text(languages.names[i])});
    }
    write(0, entries, IsLanguageEntry);
    for (std::size_t kind = 1; kind < formSections_[form].size(); ++kind) {
        entries.clear();
        for (const std::string& record : data.translations.records[kind - 1])
            entries.push_back(syntax_.Write(record));
        write(kind, entries, [](const GltLine& line) { return line.hasValue; });
    }
}

std::string GltFile::ToBytes() {
    if (optionsChanged_) WriteOptions();
    for (std::size_t form = 0; form < Forms().size(); ++form)
        if (std::exchange(Forms()[form].changed, false)) WriteForm(form);
    EncodeResult encoded = Encode(sections_.ToText(), {EncodingKind::Utf8, Encoding().codePage, true});
    if (encoded.unencodable) throw Error(fileName_ + ": it holds bytes that cannot be written in UTF-8");
    return std::move(encoded.bytes);
}

} // namespace glotta
