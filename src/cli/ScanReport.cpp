#include "cli/ScanReport.h"

#include "platform/Text.h"

#include <nlohmann/json.hpp>

namespace glotta {

namespace {

std::size_t Place(const TgxSkippedString& skipped) {
    return skipped.SourcePos ? skipped.SourcePos : skipped.ConstPos;
}

void Append(std::string& out, std::string_view text, std::size_t width) {
    out += text;
    std::size_t characters = CharCount(text);
    if (characters < width)
        out.append(width - characters, ' ');
    out += ' ';
}

} // namespace

std::string JsonLine(const UnitReport& report) {
    using Json = nlohmann::ordered_json;
    Json found = Json::array(), skipped = Json::array();
    for (std::size_t i = 0; i < report.found.Count(); ++i) {
        const TgxFoundSourceString& row = report.found[i];
        found.push_back({{"position", row.Position},
                         {"line", row.Line + 1},
                         {"column", row.Column + 1},
                         {"id", row.ID},
                         {"source", row.SourceText},
                         {"value", row.Value},
                         {"replacement", row.Replacement},
                         {"note", row.Note}});
    }
    for (const TgxSkippedString& row : report.skipped)
        skipped.push_back({{"text", row.Text},
                           {"position", Place(row)},
                           {"line", row.Line + 1},
                           {"reason", SkipReasonName(row.Reason)}});
    Json unit = {{"file", report.file},
                 {"flavour", report.isCpp ? "cpp" : "pascal"},
                 {"found", std::move(found)},
                 {"skipped", std::move(skipped)}};
    return unit.dump(-1, ' ', false, Json::error_handler_t::replace) + "\n";
}

std::string OneLine(std::string_view text, std::size_t atMost) {
    std::string line;
    std::size_t characters = 0;
    for (std::size_t pos = 0; pos < text.size() && characters < atMost; ++characters) {
        std::size_t start = pos;
        char32_t character = NextChar(text, pos);
        if (character < 32 || character == 127)
            line += "#" + std::to_string(static_cast<unsigned>(character));
        else
            line += text.substr(start, pos - start);
    }
    if (CharCount(text) > atMost)
        line += "...";
    return line;
}

std::string Table(const UnitReport& report) {
    if (report.found.Count() == 0 && report.skipped.empty())
        return {};
    std::string out(report.file);
    out += '\n';
    for (std::size_t i = 0; i < report.found.Count(); ++i) {
        const TgxFoundSourceString& row = report.found[i];
        out += "  ";
        Append(out, std::to_string(row.Line + 1), 5);
        Append(out, row.ID, 16);
        if (row.Note.empty()) {
            Append(out, OneLine(row.SourceText, 48), 50);
            out += OneLine(row.Replacement);
        } else {
            Append(out, OneLine(row.SourceText, 48), 50);
            out += "left alone: " + row.Note;
        }
        out += '\n';
    }
    for (const TgxSkippedString& row : report.skipped) {
        out += "  ";
        Append(out, std::to_string(row.Line + 1), 5);
        Append(out, "skipped", 16);
        Append(out, OneLine(Trim(row.Text), 48), 50);
        out += SkipReasonName(row.Reason);
        out += '\n';
    }
    return out;
}

void ScanTotals::Add(const UnitReport& report) {
    ++units;
    found += report.found.Count();
    skipped += report.skipped.size();
    for (std::size_t i = 0; i < report.found.Count(); ++i)
        noted += !report.found[i].Note.empty();
}

void ScanTotals::Add(const ScanTotals& other) {
    units += other.units;
    found += other.found;
    noted += other.noted;
    skipped += other.skipped;
}

std::string ScanTotals::Text() const {
    auto counted = [](std::size_t count, const char* one, const char* many) {
        return std::to_string(count) + " " + (count == 1 ? one : many);
    };
    return counted(units, "unit", "units") + ": " + counted(found, "string", "strings") + " found (" +
           std::to_string(noted) + " where no call can stand), " + std::to_string(skipped) + " skipped\n";
}

} // namespace glotta
