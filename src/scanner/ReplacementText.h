// The text that takes a literal's place.
#pragma once
#include "platform/TextEdit.h"
#include "scanner/FoundStrings.h"
#include "scanner/SourceFlavour.h"
#include "settings/SettingsValues.h"

#include <string>
#include <string_view>

namespace glotta {

struct ReplacementParts {
    std::string_view component; // "glotta1", "Form1.glotta1"
    std::string_view id;
    std::string_view text; // the value, kept in a comment
    Tail tail = Tail::None;
    bool inBlockComment = false; // the place lies in an open block comment: no inner comment then
};

// glotta1.GetTextOrDefault('IDS_0' (* 'Hello' *) );
std::string BuildReplacement(const ReplacementParts& parts, const SourceFlavour& flavour,
                             const SettingsValues& settings);

// Builds the row's replacement anew, after its identifier was changed.
void RebuildReplacement(TgxFoundSourceString& row, std::string_view component, const SourceFlavour& flavour,
                        const SettingsValues& settings);

// What the row's replacement does to the source. A concatenation at a line's end gets no blank behind it.
TextEdit ReplacementEdit(std::string_view source, const TgxFoundSourceString& row);

// The value made fit for a comment: cut by CommentsLength, no line break, no comment end.
std::string CommentText(std::string_view value, const SourceFlavour& flavour, int commentsLength);

// The component as a call names it: alone, or with its form when the settings or `foreignForm` ask for that.
std::string ComponentReference(std::string_view form, std::string_view component, bool withForm,
                               const SourceFlavour& flavour);

// " // TGL: Localized (Don't modify!)", behind a localized constant.
extern const std::string_view LocalizedComment;

} // namespace glotta
