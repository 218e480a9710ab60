#include "runtime/GlbFile.h"

#include "platform/Error.h"
#include "runtime/Crc32.h"
#include "runtime/Record.h"

namespace glotta {
namespace {

// A conversion of line ends or a copy as text shows in the first eight bytes.
constexpr std::string_view Signature = "\x89GLB\r\n\x1A\n";
constexpr std::uint32_t Version = 1;

// --- writing

void PutFixed(std::string& bytes, std::size_t at, std::uint32_t value) {
    for (int shift = 0; shift < 32; shift += 8)
        bytes[at++] = static_cast<char>(value >> shift & 0xFF);
}

void AppendFixed(std::string& bytes, std::uint32_t value) {
    bytes.resize(bytes.size() + 4);
    PutFixed(bytes, bytes.size() - 4, value);
}

void AppendNumber(std::string& bytes, std::size_t value) {
    for (; value >= 0x80; value >>= 7)
        bytes += static_cast<char>((value & 0x7F) | 0x80);
    bytes += static_cast<char>(value);
}

void AppendText(std::string& bytes, std::string_view text) {
    AppendNumber(bytes, text.size());
    bytes += text;
}

void AppendRecord(std::string& bytes, std::string_view record) {
    RecordReader fields(record);
    AppendText(bytes, fields.Next());
    AppendNumber(bytes, static_cast<std::size_t>(std::count(record.begin(), record.end(), ItemDelimiter)));
    while (!fields.AtEnd())
        AppendText(bytes, fields.Next());
}

void AppendData(std::string& bytes, const std::string& name, const FormTranslations& translations) {
    AppendText(bytes, name);
    AppendNumber(bytes, static_cast<std::size_t>(translations.languages.count));
    AppendNumber(bytes, static_cast<std::size_t>(translations.languages.active));
    AppendNumber(bytes, translations.languages.names.size());
    for (const std::string& language : translations.languages.names)
        AppendText(bytes, language);
    for (const std::vector<std::string>& records : translations.records) {
        AppendNumber(bytes, records.size());
        for (const std::string& record : records)
            AppendRecord(bytes, record);
    }
}

// About what the data takes: a length of one byte stands for each delimiter, one more for the texts' number.
std::size_t ExpectedSize(const FormTranslations& translations) {
    std::size_t size = 100;
    for (const std::vector<std::string>& records : translations.records)
        for (const std::string& record : records)
            size += record.size() + 2;
    return size;
}

// --- reading

class Reader {
public:
    Reader(const std::string& fileName, std::string_view bytes) : fileName_(fileName), bytes_(bytes) {}

    std::size_t Place() const { return at_; }
    void SetEnd(std::size_t end) { bytes_ = bytes_.substr(0, end); }

    [[noreturn]] void Fail(std::size_t place, const std::string& reason) const {
        throw Error(fileName_ + ": offset " + std::to_string(place) + ": " + reason);
    }

    std::string_view Bytes(std::size_t count) {
        if (bytes_.size() - at_ < count) Fail(at_, "the data ends too early");
        at_ += count;
        return bytes_.substr(at_ - count, count);
    }

    std::uint32_t Fixed() {
        std::uint32_t value = 0;
        int shift = 0;
        for (const char byte : Bytes(4)) {
            value |= std::uint32_t(static_cast<unsigned char>(byte)) << shift;
            shift += 8;
        }
        return value;
    }

    std::size_t Number() {
        const std::size_t begin = at_;
        std::uint64_t value = 0;
        for (int shift = 0;; shift += 7) {
            const auto byte = static_cast<unsigned char>(Bytes(1)[0]);
            value |= std::uint64_t(byte & 0x7F) << shift;
            if (value > 0xFFFFFFFF || shift > 28) Fail(begin, "this number is too large");
            if (byte < 0x80) return static_cast<std::size_t>(value);
        }
    }

    std::size_t NumberBetween(std::size_t least, std::size_t most, const char* what) {
        const std::size_t begin = at_, number = Number();
        if (number < least || number > most)
            Fail(begin, std::string(what) + " cannot be " + std::to_string(number));
        return number;
    }

    // A count of things that take a byte at least.
    std::size_t Count() {
        const std::size_t begin = at_, count = Number();
        if (count > bytes_.size() - at_)
            Fail(begin, "there is no room for " + std::to_string(count) + " entries");
        return count;
    }

    std::string_view Text() {
        const std::size_t length = Number(), begin = at_;
        const std::string_view bytes = Bytes(length);
        if (const std::size_t bad = FindMalformed(bytes); bad < bytes.size())
            Fail(begin + bad, "this is no UTF-8");
        return bytes;
    }

private:
    const std::string& fileName_;
    std::string_view bytes_;
    std::size_t at_ = 0;
};

void ReadRecords(Reader& in, std::vector<std::string>& records) {
    std::string record; // grows once for all
    for (std::size_t left = in.Count(); left > 0; --left) {
        record.clear();
        record += JoinFields({std::string(in.Text())});
        for (std::size_t texts = in.Count(); texts > 0; --texts)
            AppendField(record, in.Text());
        records.push_back(record);
    }
}

FormTranslations ReadTranslations(Reader& in) {
    FormTranslations result;
    Languages& languages = result.languages;
    languages.count = static_cast<int>(in.NumberBetween(1, Languages::Max, "the number of languages"));
    const auto count = static_cast<std::size_t>(languages.count);
    languages.active = static_cast<int>(in.NumberBetween(1, count, "the active language"));
    const std::size_t place = in.Place();
    for (std::size_t names = in.Count(); names > 0; --names)
        languages.names.emplace_back(in.Text());
    if (languages.names.size() < count) in.Fail(place, "there are more languages than names");
    for (std::vector<std::string>& records : result.records)
        ReadRecords(in, records);
    return result;
}

} // namespace

GlbFile::GlbFile(const std::string& fileName, std::string_view bytes) {
    Reader in(fileName, bytes);
    if (!bytes.starts_with(Signature)) in.Fail(0, "this is no TGlotta binary file");
    in.Bytes(Signature.size());
    if (const std::uint32_t version = in.Fixed(); version != Version)
        in.Fail(Signature.size(), "version " + std::to_string(version) + " of the format is not known");
    for (std::uint32_t left = in.Fixed(); left > 0; --left) {
        const std::size_t size = in.Fixed(), place = in.Place();
        const std::uint32_t sum = in.Fixed();
        const std::size_t begin = in.Place();
        if (Crc32(in.Bytes(size)) != sum) in.Fail(place, "the checksum of this form's data is wrong");
        Reader form(fileName, bytes.substr(0, begin + size));
        form.Bytes(begin);
        const std::string name(form.Text());
        if (Has(name)) form.Fail(begin, "form " + name + " is there twice");
        Forms()[PlaceOf(name)].translations = ReadTranslations(form);
        if (form.Place() != begin + size) form.Fail(form.Place(), "there is more data than this form has");
    }
    if (in.Place() != bytes.size()) in.Fail(in.Place(), "there is more data behind the last form");
}

std::string GlbFile::ToBytes() {
    std::size_t size = 0;
    for (const Form& form : Forms())
        size += ExpectedSize(form.translations);
    std::string bytes(Signature);
    bytes.reserve(size);
    AppendFixed(bytes, Version);
    AppendFixed(bytes, static_cast<std::uint32_t>(Forms().size()));
    for (const Form& form : Forms()) {
        const std::size_t head = bytes.size();
        bytes.resize(head + 8);
        AppendData(bytes, form.name, form.translations);
        const std::string_view data = std::string_view(bytes).substr(head + 8);
        PutFixed(bytes, head, static_cast<std::uint32_t>(data.size()));
        PutFixed(bytes, head + 4, Crc32(data));
    }
    return bytes;
}

} // namespace glotta
