#include "runtime/GltSections.h"

#include "platform/LineSpans.h"
#include "platform/Text.h"

namespace glotta {
namespace {

bool IsComment(std::string_view trimmed) {
    return trimmed.starts_with(';') || trimmed.starts_with('#');
}

bool EndsLine(std::string_view text) {
    return text.ends_with('\n') || text.ends_with('\r');
}

// The text ends with an empty line, or is empty.
bool EndsWithBlankLine(std::string_view text) {
    const std::size_t end = TrimRight(text).size();
    if (end == 0) return true;
    std::size_t ends = 0;
    for (std::size_t pos = end; pos < text.size(); pos = LineAt(text, pos).next)
        if (LineAt(text, pos).next > LineAt(text, pos).end) ++ends;
    return ends >= 2;
}

void EndWithBlankLine(std::string& text, std::string_view lineEnd) {
    if (!text.empty() && !EndsLine(text)) text += lineEnd;
    if (!EndsWithBlankLine(text)) text += lineEnd;
}

} // namespace

std::size_t GltSection::HeaderLine() const {
    std::size_t line = firstLine;
    for (std::size_t pos = LineAt(text, 0).next; pos < headerEnd; pos = LineAt(text, pos).next)
        ++line;
    return line;
}

std::vector<GltLine> GltSection::Lines() const {
    std::vector<GltLine> lines;
    std::size_t number = headerEnd == 0 ? firstLine : HeaderLine() + 1;
    for (std::size_t pos = headerEnd; pos < text.size(); ++number) {
        const LineSpan span = LineAt(text, pos);
        const std::string_view raw = std::string_view(text).substr(pos, span.next - pos), line = Trim(raw);
        const std::size_t equals = line.find('=');
        const bool comment = IsComment(line), has = !comment && equals != line.npos;
        lines.push_back({number, raw, has ? TrimRight(line.substr(0, equals)) : line,
                         has ? TrimLeft(line.substr(equals + 1)) : std::string_view(), comment, line.empty(),
                         has});
        pos = span.next;
    }
    return lines;
}

bool GltSection::HasComments() const {
    if (!Trim(std::string_view(text).substr(0, headerEnd)).starts_with('[')) return true;
    for (const GltLine& line : Lines())
        if (!line.isBlank) return true;
    return false;
}

void GltSection::SetEntries(const std::vector<Entry>& entries, std::string_view lineEnd,
                            const std::function<bool(const GltLine&)>& isEntry) {
    std::string pending; // what stood before the next entry, or behind the last one
    std::vector<std::pair<std::string, std::string>> others;
    std::unordered_map<std::string_view, std::size_t> before;
    for (const GltLine& line : Lines()) {
        if (!isEntry(line)) {
            pending += line.raw;
            continue;
        }
        if (pending.empty()) continue;
        before.emplace(line.name, others.size());
        others.emplace_back(line.name, std::exchange(pending, {}));
    }
    std::string result = text.substr(0, headerEnd);
    if (!result.empty() && !EndsLine(result)) result += lineEnd;
    for (const Entry& entry : entries) {
        if (const auto found = before.find(entry.name); found != before.end())
            result += std::exchange(others[found->second].second, {});
        result.append(entry.line).append(lineEnd);
    }
    for (const auto& other : others)
        result += other.second;
    text = result + pending;
}

GltSections::GltSections(std::string_view text) : all_(1) {
    if (const LineSpan first = LineAt(text, 0); first.next > first.end)
        lineEnd_ = text.substr(first.end, first.next - first.end);
    std::size_t begin = 0, comments = 0; // where the comments directly above begin
    std::size_t number = 1, commentsNumber = 1;
    for (std::size_t pos = 0; pos < text.size(); ++number) {
        const LineSpan span = LineAt(text, pos);
        const std::string_view line = Trim(text.substr(pos, span.end - pos));
        if (line.starts_with('[') && line.ends_with(']')) {
            all_.back().text = text.substr(begin, comments - begin);
            begin = comments;
            GltSection& section = all_.emplace_back();
            section.name = Trim(line.substr(1, line.size() - 2));
            section.headerEnd = span.next - begin;
            section.firstLine = commentsNumber;
        }
        pos = span.next;
        if (!IsComment(line)) comments = pos, commentsNumber = number + 1;
    }
    all_.back().text = text.substr(begin);
}

std::string GltSections::ToText() const {
    std::size_t size = 0;
    for (const GltSection& section : all_)
        size += section.text.size();
    std::string text;
    text.reserve(size);
    for (const GltSection& section : all_)
        text += section.text;
    return text;
}

GltSections::Place GltSections::Insert(Place before, const std::string& name) {
    EndWithBlankLine(std::prev(before)->text, lineEnd_);
    GltSection section;
    section.name = name;
    section.text = "[" + name + "]" + lineEnd_;
    section.headerEnd = section.text.size();
    if (before != all_.end()) section.text += lineEnd_;
    return all_.insert(before, std::move(section));
}

} // namespace glotta
