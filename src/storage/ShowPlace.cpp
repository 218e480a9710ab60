#include "storage/ShowPlace.h"

#include "platform/LineSpans.h"
#include "platform/Text.h"

namespace glotta {

namespace {

std::string_view LineOf(std::string_view source, int line) {
    std::size_t begin = 0;
    for (int i = 1; i < line && begin < source.size(); ++i)
        begin = LineAt(source, begin).next;
    return source.substr(begin, LineAt(source, begin).end - begin);
}

} // namespace

bool ShowSourceLine(IdeServices& ide, const std::string& fileName, int line, std::string_view text) {
    if (!ide.OpenFile(fileName, true)) return false;
    IOTASourceEditor* const editor = ide.GetSourceEditorFromFileName(fileName);
    if (!editor) return false;
    const std::string source = ide.GetUnitSource(fileName);
    const std::string_view content = LineOf(source, line);
    const std::size_t at = text.empty() ? std::string_view::npos : content.find(text);
    EditPos start{line, 1}, after{line, 1};
    if (at != std::string_view::npos) {
        start.column += int(CharCount(content.substr(0, at)));
        after.column = start.column + int(CharCount(text));
    }
    IOTAEditView& view = editor->View();
    view.SetCursorPos(after);
    view.SetBlock(start, after);
    view.Center(line);
    editor->Show();
    return true;
}

void ShowComponent(IdeServices& ide, const std::string& fileName, const std::string& formName,
                   const std::string& componentName) {
    ide.OpenFile(fileName, false);
    IDesigner* const designer = ide.GetDesignerByFormName(formName);
    if (!designer) {
        ide.GetUi().MessageDlg("Nil designer", MsgType::Plain);
        return;
    }
    ide.OpenFile(fileName, true);
    if (IOTAFormEditor* editor = IdeServices::GetFormEditorFromModule(ide.GetModuleFromFileName(fileName)))
        editor->Show();
    designer->SelectComponent(designer->Root().FindComponent(componentName));
}

} // namespace glotta
