#include "scanner/SourceScan.h"

namespace glotta {

ScanRules::ScanRules(const SettingsValues& settings, const HelperLibrary& helper)
    : settings_(settings), helper_(helper) {
    for (const std::string& phrase : settings_.SkipLines)
        if (!phrase.empty()) skipLines_.push_back(UpperCase(phrase));
    for (std::size_t pos = 0; pos < settings_.ExcludeChars.size();) {
        const char32_t character = NextChar(settings_.ExcludeChars, pos);
        excludeChars_.insert(character);
        if (character < 128) excludeAscii_[character] = true;
    }
    settings_.SkipWords.IndexOf({}); // builds its index now: several threads will ask
}

bool ScanRules::IsExcludedChar(char32_t character) const {
    return character < 128 ? excludeAscii_[character] : excludeChars_.contains(character);
}

template <typename CommentTest>
TStringSkipReason ScanRules::Exclude(std::string_view value, const CommentTest& inComment) const {
    if (!settings_.SkipWords.Empty() && settings_.SkipWords.IndexOf(value) >= 0) return ssrByPhrase;
    if (inComment()) return ssrComments;
    if (settings_.UseRegExpForSkip && helper_.HasRegExp()) {
        const std::string text(value);
        for (const std::string& pattern : settings_.SkipWords)
            if (helper_.REStringMatches(pattern.c_str(), text.c_str())) return ssrByPhrasesRE;
    }
    std::size_t pos = 0;
    while (pos < value.size())
        if (!IsExcludedChar(NextChar(value, pos))) return ssrNone;
    return ssrBadChars; // an empty value too
}

TStringSkipReason ScanRules::IsExcludeString(std::string_view value, int a, int b, bool isCpp) const {
    return Exclude(value, [&] {
        return (a > -1 || b > 0) && helper_.HasCommentTest() && helper_.IsCommentAt(a + 1, b + 1, isCpp);
    });
}

TStringSkipReason ScanRules::IsExcludeString(std::string_view value, bool inComment) const {
    return Exclude(value, [&] { return inComment; });
}

bool ScanRules::SkipsLine(std::string_view line) const {
    if (skipLines_.empty()) return false;
    const std::string upper = UpperCase(line);
    return std::any_of(skipLines_.begin(), skipLines_.end(),
                       [&](const std::string& phrase) { return upper.find(phrase) != std::string::npos; });
}

} // namespace glotta
