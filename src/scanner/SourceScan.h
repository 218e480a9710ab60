// Scans the text of one unit for literals. A pure function of its input: no IDE, no files, no globals.
#pragma once
#include "platform/Text.h"
#include "scanner/FoundStrings.h"
#include "scanner/HelperLibrary.h"
#include "scanner/SourceFlavour.h"
#include "settings/SettingsValues.h"

#include <functional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace glotta {

// The settings prepared for many scans: look-ups hashed, texts upper-cased once.
class ScanRules {
public:
    ScanRules(const SettingsValues& settings, const HelperLibrary& helper);
    const SettingsValues& Settings() const { return settings_; }
    const HelperLibrary& Helper() const { return helper_; }

    // The rules for one decoded literal. `a` and `b` are its place for the comment test, 0-based; -1 and 0:
    // not known.
    TStringSkipReason IsExcludeString(std::string_view value, int a, int b, bool isCpp) const;
    // The same when the comment test was made already.
    TStringSkipReason IsExcludeString(std::string_view value, bool inComment) const;
    // The line contains one of the SkipLines phrases.
    bool SkipsLine(std::string_view line) const;

private:
    template <typename CommentTest>
    TStringSkipReason Exclude(std::string_view value, const CommentTest& inComment) const;
    bool IsExcludedChar(char32_t character) const;

    SettingsValues settings_;
    const HelperLibrary& helper_;
    std::vector<std::string> skipLines_; // upper-cased
    std::unordered_set<char32_t> excludeChars_;
    bool excludeAscii_[128] = {};
};

struct ScanInput {
    std::string_view text; // the whole buffer, CR LF line ends
    const SourceFlavour* flavour = &PascalFlavour;
    bool constMode = false;
    std::string component;             // the component reference as the replacement names it
    std::vector<std::string> idsInUse; // of the component
    // The part to scan, in bytes of text: a selection. Positions refer to the whole text all the same.
    std::size_t begin = 0, end = std::string_view::npos;
    std::function<void(std::size_t found)> onFound; // progress
};

struct ScanOutput {
    TgxFoundSourceStrings found;
    std::vector<TgxSkippedString> skipped;
};

ScanOutput ScanSource(const ScanInput& input, const ScanRules& rules);

} // namespace glotta
