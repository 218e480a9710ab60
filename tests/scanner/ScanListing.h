// A scan's result as text, one line for each row, to be compared whole.
#pragma once
#include "scanner/SourceScan.h"

#include <string>

namespace glotta {

struct ScanCase {
    const char* what;
    std::string source; // LF line ends; the scan gets CR LF
    std::string expected;
    const SourceFlavour* flavour = &PascalFlavour;
    bool constMode = false;
    bool helper = true;
    void (*settings)(SettingsValues&) = nullptr;
    std::size_t begin = 0;
};

inline std::string Visible(const std::string& text) {
    std::string result;
    for (const char c : text)
        switch (c) {
        case '\r':
            result += "\\r";
            break;
        case '\n':
            result += "\\n";
            break;
        case '\t':
            result += "\\t";
            break;
        default:
            result += c;
        }
    return result;
}

// "1:5 IDS_0 'Hello' ; = Hello" for a found literal: line and column from 1, identifier, source, what follows
// it, value.
inline std::string Listing(const ScanOutput& output) {
    static constexpr const char* Tails[] = {"", " +", " ;"};
    std::string result;
    for (std::size_t i = 0; i < output.found.Count(); ++i) {
        const TgxFoundSourceString& row = output.found[i];
        result += std::to_string(row.Line + 1) + ':' + std::to_string(row.Column + 1) + ' ' + row.ID + ' ' +
                  Visible(row.SourceText) + Tails[int(row.FollowedBy)] + " = " + Visible(row.Value) +
                  (row.Note == "cuts a token" ? " (cuts a token)" : "") + '\n';
    }
    for (const TgxSkippedString& skipped : output.skipped)
        result += std::to_string(skipped.SourcePos + skipped.ConstPos) + ' ' +
                  SkipReasonName(skipped.Reason) + ' ' + Visible(skipped.Text) + '\n';
    return result;
}

inline const HelperLibrary& Helper(bool present) {
    static const HelperLibrary loaded, absent = HelperLibrary::Absent();
    return present ? loaded : absent;
}

inline ScanOutput RunScan(const ScanCase& testCase) {
    SettingsValues settings;
    settings.IgnorableLength = 1;
    if (testCase.settings) testCase.settings(settings);
    const ScanRules rules(settings, Helper(testCase.helper));
    const std::string text = ReplaceStr(testCase.source, "\n", "\r\n");
    ScanInput input;
    input.text = text;
    input.flavour = testCase.flavour;
    input.constMode = testCase.constMode;
    input.component = "glotta1";
    input.begin = testCase.begin;
    return ScanSource(input, rules);
}

inline void ExpectListings(const std::vector<ScanCase>& cases) {
    for (const ScanCase& testCase : cases)
        EXPECT_EQ(Listing(RunScan(testCase)), testCase.expected) << testCase.what << "\n" << testCase.source;
}

} // namespace glotta
