#include "scanner/FoundStrings.h"

namespace glotta {

TgxFoundSourceString& TgxFoundSourceStrings::AddItem() {
    return *items_.emplace_back(std::make_unique<TgxFoundSourceString>());
}

void TgxFoundSourceStrings::Sort() {
    std::stable_sort(items_.begin(), items_.end(),
                     [](const auto& a, const auto& b) { return a->Position < b->Position; });
}

const char* SkipReasonName(TStringSkipReason reason) {
    static constexpr const char* Names[] = {"ssrNone",        "ssrBadChars",   "ssrByLine",  "ssrByPhrase",
                                            "ssrByPhrasesRE", "ssByIgnoreTag", "ssrComments"};
    return Names[reason];
}

} // namespace glotta
