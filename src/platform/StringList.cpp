#include "platform/StringList.h"

#include "platform/Text.h"

namespace glotta {
namespace {

bool IsBlank(char c) {
    return static_cast<unsigned char>(c) <= ' ';
}

// The text inside the quotes at `pos`, doubled quotes halved; pos moves behind the closing quote.
std::string ExtractQuoted(std::string_view text, std::size_t& pos) {
    std::string result;
    for (++pos; pos < text.size(); ++pos) {
        if (text[pos] == '"') {
            ++pos;
            if (pos >= text.size() || text[pos] != '"') break;
        }
        result += text[pos];
    }
    return result;
}

} // namespace

int TStringList::Add(std::string item) {
    const int index = static_cast<int>(items_.size());
    if (indexed_) index_.try_emplace(UpperCase(item), index);
    items_.push_back(std::move(item));
    return index;
}

void TStringList::Insert(std::size_t index, std::string item) {
    indexed_ = false;
    items_.insert(items_.begin() + static_cast<std::ptrdiff_t>(index), std::move(item));
}

void TStringList::Put(std::size_t index, std::string item) {
    indexed_ = false;
    items_[index] = std::move(item);
}

void TStringList::Delete(std::size_t index) {
    indexed_ = false;
    items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(index));
}

void TStringList::Clear() {
    Assign({});
}

void TStringList::Assign(std::vector<std::string> items) {
    indexed_ = false;
    items_ = std::move(items);
}

int TStringList::IndexOf(std::string_view item) const {
    if (!indexed_) {
        index_.clear();
        for (std::size_t i = 0; i < items_.size(); ++i)
            index_.try_emplace(UpperCase(items_[i]), static_cast<int>(i));
        indexed_ = true;
    }
    const auto found = index_.find(UpperCase(item));
    return found == index_.end() ? -1 : found->second;
}

std::string TStringList::Text() const {
    std::string result;
    for (const std::string& item : items_)
        result.append(item).append("\r\n");
    return result;
}

void TStringList::SetText(std::string_view text) {
    Assign(SplitLines(text));
}

std::string TStringList::CommaText() const {
    if (items_.size() == 1 && items_[0].empty()) return "\"\"";
    std::string result;
    for (std::size_t i = 0; i < items_.size(); ++i) {
        const std::string& item = items_[i];
        const bool quote =
            std::any_of(item.begin(), item.end(), [](char c) { return IsBlank(c) || c == '"' || c == ','; });
        if (i > 0) result += ',';
        result += quote ? '"' + ReplaceStr(item, "\"", "\"\"") + '"' : item;
    }
    return result;
}

void TStringList::SetCommaText(std::string_view text) {
    std::vector<std::string> items;
    std::size_t pos = 0;
    const auto skipBlanks = [&] {
        while (pos < text.size() && IsBlank(text[pos]))
            ++pos;
    };
    skipBlanks();
    while (pos < text.size()) {
        if (text[pos] == '"') {
            items.push_back(ExtractQuoted(text, pos));
        } else {
            const std::size_t begin = pos;
            while (pos < text.size() && !IsBlank(text[pos]) && text[pos] != ',')
                ++pos;
            items.emplace_back(text.substr(begin, pos - begin));
        }
        skipBlanks();
        if (pos < text.size() && text[pos] == ',') {
            if (++pos == text.size()) items.emplace_back();
            skipBlanks();
        }
    }
    Assign(std::move(items));
}

} // namespace glotta
