#include "runtime/Record.h"

#include <algorithm>

namespace glotta {

namespace {

void AppendEscaped(std::string& result, std::string_view text) {
    if (text.find(ItemDelimiter) == text.npos && text.find(ItemEscape) == text.npos) {
        result += text;
        return;
    }
    for (char c : text) {
        if (c == ItemDelimiter)
            (result += ItemEscape) += 'D';
        else if (c == ItemEscape)
            (result += ItemEscape) += 'E';
        else
            result += c;
    }
}

std::string Escaped(std::string_view text) {
    std::string result;
    AppendEscaped(result, text);
    return result;
}

std::string Unescaped(std::string_view text) {
    if (text.find(ItemEscape) == std::string_view::npos) return std::string(text);
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char next = text[i] == ItemEscape && i + 1 < text.size() ? text[i + 1] : ' ';
        if (next == 'D' || next == 'E')
            result += next == 'D' ? ItemDelimiter : ItemEscape, ++i;
        else
            result += text[i];
    }
    return result;
}

// The byte at which a field begins, the record's size when there are fewer.
std::size_t FieldStart(std::string_view record, int field) {
    std::size_t pos = 0;
    for (; field > 1 && pos < record.size(); --field) {
        pos = record.find(ItemDelimiter, pos);
        pos = pos == std::string_view::npos ? record.size() : pos + 1;
    }
    return pos;
}

int FieldCount(std::string_view record) {
    return 1 + static_cast<int>(std::count(record.begin(), record.end(), ItemDelimiter));
}

} // namespace

std::string_view ExtractWord(int index, std::string_view text, char delimiter) {
    for (; index > 0; --index) {
        const std::size_t end = text.find(delimiter);
        if (index == 1) return text.substr(0, end);
        if (end == std::string_view::npos) break;
        text.remove_prefix(end + 1);
    }
    return {};
}

std::string RecordField(std::string_view record, int field) {
    return Unescaped(ExtractWord(field, record, ItemDelimiter));
}

std::string_view RecordReader::Next() {
    const std::size_t end = rest_.find(ItemDelimiter);
    const std::string_view field = rest_.substr(0, end);
    atEnd_ = end == rest_.npos;
    if (!atEnd_) rest_.remove_prefix(end + 1);
    if (field.find(ItemEscape) == field.npos) return field;
    return unescaped_ = Unescaped(field);
}

std::vector<std::string> RecordFields(std::string_view record) {
    std::vector<std::string> fields;
    fields.reserve(static_cast<std::size_t>(FieldCount(record)));
    for (RecordReader reader(record); !reader.AtEnd();)
        fields.emplace_back(reader.Next());
    return fields;
}

void AppendField(std::string& record, std::string_view text) {
    record += ItemDelimiter;
    AppendEscaped(record, text);
}

std::string JoinFields(const std::vector<std::string>& fields) {
    std::string record = Escaped(fields.front());
    for (std::size_t i = 1; i < fields.size(); ++i)
        AppendField(record, fields[i]);
    return record;
}

std::string MakeRecord(std::string_view id, std::string_view text, int languages) {
    std::string record = Escaped(id);
    record += ItemDelimiter;
    record += Escaped(text);
    record.append(static_cast<std::size_t>(std::max(languages - 1, 0)), ItemDelimiter);
    return record;
}

std::string WithField(std::string_view record, int field, std::string_view text) {
    std::string result(record);
    if (const int missing = field - FieldCount(record); missing > 0)
        result.append(static_cast<std::size_t>(missing), ItemDelimiter);
    const std::size_t start = FieldStart(result, field);
    const std::size_t end = std::min(result.find(ItemDelimiter, start), result.size());
    return result.replace(start, end - start, Escaped(text));
}

std::string WithLanguages(std::string_view record, int languages) {
    std::string result(record);
    const int missing = languages + 1 - FieldCount(record);
    if (missing > 0)
        result.append(static_cast<std::size_t>(missing), ItemDelimiter);
    else if (missing < 0)
        result.resize(FieldStart(record, languages + 2) - 1);
    return result;
}

} // namespace glotta
