#include "platform/CodePages.h"

#include "platform/Error.h"
#include "platform/Text.h"

#include <memory>
#include <mutex>

#ifdef _WIN32
#include <windows.h>
#else
#include <iconv.h>
#endif

namespace glotta {
namespace {

struct KnownCodePage {
    unsigned number;
    std::string_view name;
    const char* system; // the converter's name
};

constexpr KnownCodePage Known[] = {
    {1252, "windows-1252", "CP1252"},
    {1250, "windows-1250", "CP1250"},
    {1251, "windows-1251", "CP1251"},
    {1253, "windows-1253", "CP1253"},
    {1254, "windows-1254", "CP1254"},
    {1255, "windows-1255", "CP1255"},
    {1256, "windows-1256", "CP1256"},
    {1257, "windows-1257", "CP1257"},
    {1258, "windows-1258", "CP1258"},
    {437, "cp437", "CP437"},
    {737, "cp737", "CP737"},
    {775, "cp775", "CP775"},
    {850, "cp850", "CP850"},
    {852, "cp852", "CP852"},
    {855, "cp855", "CP855"},
    {857, "cp857", "CP857"},
    {860, "cp860", "CP860"},
    {861, "cp861", "CP861"},
    {862, "cp862", "CP862"},
    {863, "cp863", "CP863"},
    {865, "cp865", "CP865"},
    {866, "cp866", "CP866"},
    {874, "windows-874", "CP874"},
    {932, "cp932", "CP932"},
    {936, "cp936", "CP936"},
    {949, "cp949", "CP949"},
    {950, "cp950", "CP950"},
    {20866, "koi8-r", "KOI8-R"},
    {21866, "koi8-u", "KOI8-U"},
    {28591, "iso-8859-1", "ISO-8859-1"},
    {28592, "iso-8859-2", "ISO-8859-2"},
    {28593, "iso-8859-3", "ISO-8859-3"},
    {28594, "iso-8859-4", "ISO-8859-4"},
    {28595, "iso-8859-5", "ISO-8859-5"},
    {28597, "iso-8859-7", "ISO-8859-7"},
    {28599, "iso-8859-9", "ISO-8859-9"},
    {28603, "iso-8859-13", "ISO-8859-13"},
    {28605, "iso-8859-15", "ISO-8859-15"},
};

// One character at a time between the code page and Unicode, as the system does it.
class Converter {
public:
    explicit Converter(const KnownCodePage& page);
    ~Converter();
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;

    // CodePageTable::None unless all bytes together are one character.
    char32_t ToChar(std::string_view bytes);
    // Empty when the code page lacks the character.
    std::string FromChar(char32_t character);

private:
#ifdef _WIN32
    unsigned page_;
#else
    iconv_t decode_, encode_;
#endif
};

#ifdef _WIN32
Converter::Converter(const KnownCodePage& page) : page_(page.number) {
    if (!IsValidCodePage(page_))
        throw Error("The system does not know the encoding " + std::string(page.name));
}
Converter::~Converter() = default;

char32_t Converter::ToChar(std::string_view bytes) {
    wchar_t out[4];
    const int got = MultiByteToWideChar(page_, MB_ERR_INVALID_CHARS, bytes.data(), int(bytes.size()), out, 4);
    return got == 1 ? char32_t(out[0]) : CodePageTable::None;
}
std::string Converter::FromChar(char32_t character) {
    const wchar_t in = static_cast<wchar_t>(character);
    char out[8];
    BOOL replaced = FALSE;
    const int got = WideCharToMultiByte(page_, WC_NO_BEST_FIT_CHARS, &in, 1, out, 8, nullptr, &replaced);
    return replaced || got <= 0 ? std::string() : std::string(out, std::size_t(got));
}
#else
iconv_t OpenConverter(const char* to, const char* from, std::string_view name) {
    const iconv_t converter = iconv_open(to, from);
    if (converter == reinterpret_cast<iconv_t>(-1))
        throw Error("The system does not know the encoding " + std::string(name));
    return converter;
}

Converter::Converter(const KnownCodePage& page) : decode_(OpenConverter("UTF-8", page.system, page.name)) {
    try {
        encode_ = OpenConverter(page.system, "UTF-8", page.name);
    } catch (const Error&) {
        iconv_close(decode_);
        throw;
    }
}
Converter::~Converter() {
    iconv_close(decode_);
    iconv_close(encode_);
}

std::string Convert(iconv_t converter, std::string_view text) {
    char out[16];
    char* in = const_cast<char*>(text.data()); // iconv's signature; it does not write there
    char* to = out;
    std::size_t inLeft = text.size(), outLeft = sizeof out;
    iconv(converter, nullptr, nullptr, nullptr, nullptr);
    if (iconv(converter, &in, &inLeft, &to, &outLeft) != 0 || inLeft != 0) return {};
    iconv(converter, nullptr, nullptr, &to, &outLeft); // some pages hold a character back
    return {out, sizeof out - outLeft};
}

char32_t Converter::ToChar(std::string_view bytes) {
    const std::string text = Convert(decode_, bytes);
    std::size_t pos = 0;
    const char32_t character = text.empty() ? CodePageTable::None : NextChar(text, pos);
    return pos == text.size() ? character : CodePageTable::None;
}
std::string Converter::FromChar(char32_t character) {
    std::string text;
    AppendChar(text, character);
    return Convert(encode_, text);
}
#endif

bool IsDoubleByte(unsigned number) {
    return number == 932 || number == 936 || number == 949 || number == 950;
}

void FillSingles(CodePageTable& table, Converter& converter, unsigned number) {
    for (unsigned byte = 0; byte < 256; ++byte) {
        const char bytes[] = {static_cast<char>(byte)};
        char32_t character = byte < 0x80 ? byte : converter.ToChar({bytes, 1});
        // Where a page leaves a hole among the control characters, Windows puts the control character.
        if (character == CodePageTable::None && byte < 0xA0 && !table.leads[byte])
            character = number == 936 && byte == 0x80 ? U'\u20AC' : char32_t(byte);
        if ((byte >= 0x80 && character < 0x80) || character > 0xFFFF || table.leads[byte] ||
            !table.back.emplace(character, static_cast<std::uint16_t>(byte)).second)
            character = CodePageTable::None;
        table.single[byte] = character;
    }
}

void FillPairs(CodePageTable& table, Converter& converter) {
    table.pairs.assign(65536, CodePageTable::None);
    for (unsigned lead = 0x81; lead < 0xFF; ++lead) {
        for (unsigned trail = 0x30; trail < 0xFF; ++trail) {
            const char bytes[] = {static_cast<char>(lead), static_cast<char>(trail)};
            const char32_t character = converter.ToChar({bytes, 2});
            if (character == CodePageTable::None) continue;
            const unsigned code = lead * 256 + trail;
            table.leads[lead] = true;
            table.pairs[code] = CodePageTable::OtherPair;
            if (character >= 0x80 && character <= 0xFFFF &&
                converter.FromChar(character) == std::string_view(bytes, 2) &&
                table.back.emplace(character, static_cast<std::uint16_t>(code)).second)
                table.pairs[code] = character;
        }
    }
}

CodePageTable Build(const KnownCodePage& page) {
    CodePageTable table;
    Converter converter(page);
    if (IsDoubleByte(page.number)) FillPairs(table, converter);
    FillSingles(table, converter, page.number);
    return table;
}

} // namespace

const std::vector<CodePageName>& CodePageNames() {
    static const std::vector<CodePageName> names = [] {
        std::vector<CodePageName> all;
        for (const KnownCodePage& page : Known)
            all.push_back({page.number, page.name});
        return all;
    }();
    return names;
}

const CodePageTable& TableOfCodePage(unsigned number) {
    static std::mutex mutex;
    static std::unordered_map<unsigned, std::unique_ptr<const CodePageTable>> tables;
    const std::lock_guard lock(mutex);
    std::unique_ptr<const CodePageTable>& table = tables[number];
    if (!table) {
        const auto page = std::find_if(std::begin(Known), std::end(Known),
                                       [&](const auto& known) { return known.number == number; });
        if (page == std::end(Known)) throw Error("Unknown code page " + std::to_string(number));
        table = std::make_unique<const CodePageTable>(Build(*page));
    }
    return *table;
}

} // namespace glotta
