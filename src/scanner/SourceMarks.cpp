#include "scanner/SourceMarks.h"

#include "platform/Text.h"
#include "scanner/SourceFlavour.h"

#include <algorithm>

namespace glotta {

namespace {

std::string WithExtension(const std::string& fileName, std::string_view extension) {
    const auto dot = fileName.find_last_of("./\\");
    const bool has = dot != std::string::npos && fileName[dot] == '.';
    return fileName.substr(0, has ? dot : fileName.size()).append(extension);
}

// The byte ranges of the lines of a text; the ends of lines as SplitLines has them.
std::vector<std::string_view> Lines(std::string_view text) {
    std::vector<std::string_view> lines;
    std::size_t begin = 0;
    while (begin < text.size()) {
        const std::size_t end = std::min(text.find_first_of("\r\n", begin), text.size());
        lines.push_back(text.substr(begin, end - begin));
        begin = end + (text.substr(end, 2) == "\r\n" ? 2 : 1);
    }
    return lines;
}

} // namespace

void MarkSourceSelectionToSkip(IdeServices& ide) {
    IOTASourceEditor* editor = ide.GetCurrentSourceEditor();
    if (!editor) return;
    const SourceFlavour& flavour = FlavourOf(editor->FileName());
    std::string text = "\r\n";
    text.append(flavour.STARTIGNORE).append("\r\n").append(ide.GetSelectedSourceText()).append("\r\n");
    text.append(flavour.STOPIGNORE).append("\r\n");
    ide.ReplaceSelectedSourceText(text);
}

void MarkStringToSkip(IdeServices& ide, const TgxFoundSourceString* foundString) {
    IOTASourceEditor* editor = ide.GetCurrentSourceEditor();
    if (!foundString || !editor) return;
    const std::size_t length = CharCount(ide.GetUnitSource(editor->FileName()));
    const auto placeOf = [&](std::size_t offset) { return editor->OffsetToPos(std::min(offset, length)); };
    // Both places are one character outside the literal, so that a line end beside it takes its line along.
    const std::size_t before = foundString->Position > 2 ? foundString->Position - 2 : 0;
    const EditPos start{placeOf(before).line, 1};
    EditPos after{placeOf(foundString->Position + CharCount(foundString->SourceText)).line + 1, 1};
    if (const EditPos end = placeOf(length); after > end) after = end;
    editor->View().SetBlock(start, after);
    MarkSourceSelectionToSkip(ide);
}

bool ShowStringInSource(IdeServices& ide, std::string_view id, bool activate) {
    IOTASourceEditor* current = ide.GetCurrentSourceEditor();
    if (!current) return false;
    const SourceFlavour& flavour = FlavourOf(current->FileName());
    const std::string fileName = WithExtension(current->FileName(), flavour.SOURCEEXT);
    const std::string call = std::string("(").append(flavour.STRDELIM).append(id).append(flavour.STRDELIM);

    const std::string source = ide.GetUnitSource(fileName);
    const std::size_t place = source.find(call);
    if (place == std::string::npos) return false;
    ide.OpenFile(fileName, false);
    IOTASourceEditor* editor = ide.GetSourceEditorFromFileName(fileName);
    if (!editor) return false;
    // One column on: just behind the parenthesis.
    EditPos cursor = editor->OffsetToPos(CharCount(std::string_view(source).substr(0, place)));
    ++cursor.column;
    editor->View().SetCursorPos(cursor);
    editor->View().Center(cursor.line);
    if (activate) editor->Show();
    return true;
}

std::string GetCurrentSourcePreview(IdeServices& ide, int previewLines, std::size_t position, int line,
                                    int& previewLine, std::string_view sourceText) {
    IOTASourceEditor* editor = ide.GetCurrentSourceEditor();
    if (!editor) return {};
    if (line < 1) line = IdeServices::GetLineByPos(ide.GetUnitSource(editor->FileName()), position);
    const std::vector<std::string_view> lines = Lines(sourceText);
    const std::int64_t around = std::max(previewLines, 0);
    const std::int64_t last = std::min<std::int64_t>(std::int64_t(lines.size()), line + around);
    const std::int64_t first = std::max<std::int64_t>(0, last - (2 * around + 1));
    previewLine = int(line - first - 1);
    std::string preview;
    for (std::int64_t i = first; i < last; ++i) {
        if (i > first) preview += "\r\n";
        preview += lines[std::size_t(i)];
    }
    return preview;
}

} // namespace glotta
