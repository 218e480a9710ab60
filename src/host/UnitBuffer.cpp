#include "host/UnitBuffer.h"

#include "platform/Text.h"

#include <atomic>

namespace glotta {
namespace {

std::size_t MovedBy(const UnitEdits& edits, std::size_t byte) {
    std::size_t removed = 0, added = 0;
    for (const UnitEdit& edit : edits) {
        if (edit.begin > byte || (edit.begin == byte && edit.end != byte)) break;
        if (byte < edit.end) // inside of what was replaced
            return edit.begin - removed + added;
        removed += edit.end - edit.begin;
        added += edit.text.size();
    }
    return byte - removed + added;
}

// No two steps are alike, of whatever buffer: a file may be opened anew.
std::size_t NextStep() {
    static std::atomic<std::size_t> newest = 0;
    return ++newest;
}

} // namespace

UnitBuffer::UnitBuffer(UnitText unit) : unit_(std::move(unit)) {}

bool UnitBuffer::Apply(std::vector<TextEdits> groups) {
    Groups inverse;
    lastStep_.clear();
    for (TextEdits& group : groups) {
        UnitEdits edits = NormalizedEdits(unit_.text, std::move(group));
        if (edits.empty()) continue;
        inverse.insert(inverse.begin(), ApplyUnitEdits(unit_, edits));
        lastStep_.push_back(std::move(edits));
    }
    if (inverse.empty()) return false;
    if (savedStep_ != std::string::npos && savedStep_ > undo_.size()) savedStep_ = std::string::npos;
    redo_.clear();
    ++version_;
    undo_.push_back({NextStep(), std::move(inverse)});
    return true;
}

bool UnitBuffer::ApplyJoined(std::vector<TextEdits> groups) {
    const bool joins = !undo_.empty() && savedStep_ != undo_.size();
    if (!Apply(std::move(groups))) return false;
    if (!joins) return true;
    Step newest = std::move(undo_.back());
    undo_.pop_back();
    Step& former = undo_.back();
    std::move(former.groups.begin(), former.groups.end(), std::back_inserter(newest.groups));
    former = std::move(newest);
    return true;
}

bool UnitBuffer::Undo() {
    if (undo_.empty()) return false;
    Step step = std::move(undo_.back());
    undo_.pop_back();
    Change(std::move(step), redo_);
    return true;
}

bool UnitBuffer::Redo() {
    if (redo_.empty()) return false;
    Step step = std::move(redo_.back());
    redo_.pop_back();
    Change(std::move(step), undo_);
    return true;
}

void UnitBuffer::Change(Step step, std::vector<Step>& inverseTo) {
    Groups inverse;
    for (const UnitEdits& edits : step.groups)
        inverse.insert(inverse.begin(), ApplyUnitEdits(unit_, edits));
    inverseTo.push_back({step.id, std::move(inverse)});
    lastStep_ = std::move(step.groups);
    ++version_;
}

const UnitBuffer::LineIndex& UnitBuffer::Lines() const {
    if (lines_.version == version_) return lines_;
    lines_ = {version_, {0}, {}};
    const std::string_view text = unit_.text;
    for (std::size_t at = 0; (at = text.find('\n', at)) != std::string_view::npos;)
        lines_.bytes.push_back(++at);
    if (IsAscii(text)) return lines_;
    lines_.chars.reserve(lines_.bytes.size());
    lines_.chars.push_back(0);
    for (std::size_t line = 1; line < lines_.bytes.size(); ++line) {
        const std::size_t begin = lines_.bytes[line - 1];
        lines_.chars.push_back(lines_.chars.back() +
                               CharCount(text.substr(begin, lines_.bytes[line] - begin)));
    }
    return lines_;
}

std::size_t UnitBuffer::LineOfByte(std::size_t byte) const {
    const auto& starts = Lines().bytes;
    return static_cast<std::size_t>(std::upper_bound(starts.begin(), starts.end(), byte) - starts.begin()) -
           1;
}

std::size_t UnitBuffer::CharToByte(std::size_t character) const {
    const LineIndex& lines = Lines();
    if (lines.chars.empty()) return std::min(character, unit_.text.size());
    const auto line =
        std::upper_bound(lines.chars.begin(), lines.chars.end(), character) - lines.chars.begin() - 1;
    const std::size_t start = lines.bytes[static_cast<std::size_t>(line)];
    const std::string_view rest = std::string_view(unit_.text).substr(start);
    return start + ByteOffset(rest, character - lines.chars[static_cast<std::size_t>(line)]);
}

std::size_t UnitBuffer::ByteToChar(std::size_t byte) const {
    const LineIndex& lines = Lines();
    byte = std::min(byte, unit_.text.size());
    if (lines.chars.empty()) return byte;
    const std::size_t line = LineOfByte(byte), start = lines.bytes[line];
    return lines.chars[line] + CharCount(std::string_view(unit_.text).substr(start, byte - start));
}

std::size_t UnitBuffer::PosToByte(EditPos position) const {
    if (position.line < 1) return 0;
    const auto& starts = Lines().bytes;
    const std::size_t line = static_cast<std::size_t>(position.line) - 1;
    if (line >= starts.size()) return unit_.text.size();
    const std::size_t begin = starts[line];
    const std::size_t end = line + 1 < starts.size() ? starts[line + 1] - 2 : unit_.text.size();
    const std::string_view content = std::string_view(unit_.text).substr(begin, end - begin);
    return begin + ByteOffset(content, static_cast<std::size_t>(std::max(position.column, 1) - 1));
}

EditPos UnitBuffer::ByteToPos(std::size_t byte) const {
    byte = std::min(byte, unit_.text.size());
    const std::size_t line = LineOfByte(byte), start = Lines().bytes[line];
    const std::size_t column = CharCount(std::string_view(unit_.text).substr(start, byte - start));
    return {static_cast<int>(line) + 1, static_cast<int>(column) + 1};
}

std::size_t UnitBuffer::Moved(std::size_t byte) const {
    for (const UnitEdits& edits : lastStep_)
        byte = MovedBy(edits, byte);
    return byte;
}

} // namespace glotta
