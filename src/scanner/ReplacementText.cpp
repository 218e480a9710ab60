#include "scanner/ReplacementText.h"

#include "platform/Text.h"

namespace glotta {
namespace {

// Line separators count: some compilers end a line there.
bool IsControl(char32_t c) {
    return c < ' ' || (c >= 0x7F && c < 0xA0) || c == 0x2028 || c == 0x2029;
}

std::string_view TailText(Tail tail) {
    return tail == Tail::Concatenation ? " + " : tail == Tail::Statement ? ";" : "";
}

} // namespace

extern const std::string_view LocalizedComment = " // TGL: Localized (Don't modify!)";

std::string CommentText(std::string_view value, const SourceFlavour& flavour, int commentsLength) {
    std::string_view kept = value;
    if (commentsLength > 0) kept = CharPrefix(value, static_cast<std::size_t>(commentsLength));
    std::string text;
    text.reserve(kept.size() + 3);
    for (std::size_t pos = 0; pos < kept.size();) {
        const std::size_t begin = pos;
        const char32_t character = NextChar(kept, pos);
        if (!IsControl(character))
            text.append(kept, begin, pos - begin);
        else if (character != '\n' || begin == 0 || kept[begin - 1] != '\r')
            text += ' ';
    }
    if (kept.size() < value.size()) text += "...";
    if (text.find(flavour.COMMENTEND) == std::string::npos) return text;
    // "*)" becomes "* )", so that the comment ends where the call's text says.
    const std::string parted{flavour.COMMENTEND[0], ' ', flavour.COMMENTEND[1]};
    return ReplaceStr(text, flavour.COMMENTEND, parted);
}

std::string BuildReplacement(const ReplacementParts& parts, const SourceFlavour& flavour,
                             const SettingsValues& settings) {
    std::string result;
    const auto append = [&](auto&&... pieces) {
        result.reserve(result.size() + (std::string_view(pieces).size() + ...));
        (result.append(pieces), ...);
    };
    append(parts.component, flavour.METHODPOINT, settings.ReplaceMethod, flavour.STRDELIM, parts.id,
           flavour.STRDELIM);
    if (settings.NoCommentsInSources || parts.inBlockComment)
        append(")");
    else
        append(" ", flavour.COMMENTSTART, " ", flavour.STRDELIM,
               CommentText(parts.text, flavour, settings.CommentsLength), flavour.STRDELIM, " ",
               flavour.COMMENTEND, " ", ")");
    append(TailText(parts.tail));
    return result;
}

void RebuildReplacement(TgxFoundSourceString& row, std::string_view component, const SourceFlavour& flavour,
                        const SettingsValues& settings) {
    row.Replacement = BuildReplacement({component, row.ID, row.Value, row.FollowedBy, row.InBlockComment},
                                       flavour, settings);
}

std::string ComponentReference(std::string_view form, std::string_view component, bool withForm,
                               const SourceFlavour& flavour) {
    std::string result;
    if (withForm) result.append(form).append(flavour.METHODPOINT);
    return result.append(component);
}

TextEdit ReplacementEdit(std::string_view source, const TgxFoundSourceString& row) {
    std::string text = row.Replacement;
    std::string_view tail = row.FollowedBy == Tail::Concatenation ? "+"
                            : row.FollowedBy == Tail::Statement   ? ";"
                                                                  : "";
    // A replacement that was typed without the tail leaves the source's own in place.
    if (tail.empty() || !TrimRight(text).ends_with(tail)) return {row.Begin, row.End, std::move(text)};
    std::string_view rest = source.substr(row.TailEnd);
    if (rest.empty() || rest.starts_with("\r\n")) text.resize(TrimRight(text).size());
    return {row.Begin, row.TailEnd, std::move(text)};
}

} // namespace glotta
