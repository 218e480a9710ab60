#include "cli/UnifiedDiff.h"

#include "platform/Text.h"

#include <dtl/dtl.hpp>

#include <sstream>

namespace glotta {

std::string UnifiedDiff(const std::string& fileName, std::string_view before, std::string_view after) {
    dtl::Diff<std::string, std::vector<std::string>> diff(SplitLines(before), SplitLines(after));
    diff.onHuge();
    diff.compose();
    diff.composeUnifiedHunks();
    std::ostringstream hunks;
    diff.printUnifiedFormat(hunks);
    if (hunks.str().empty())
        return {};
    return "--- a/" + fileName + "\n+++ b/" + fileName + "\n" + hunks.str();
}

} // namespace glotta
