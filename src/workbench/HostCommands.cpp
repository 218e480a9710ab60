#include "workbench/HostCommands.h"

#include "workbench/HostWindow.h"

namespace glotta {
namespace {

using W = HostWindow;
constexpr HostCommand Commands[] = {
    {"FileMenu", "FileOpenProjectItem", "&Open Project...", "Ctrl+O", "Open a project or a project group", &W::OpenProjectClick},
    {"FileMenu", "FileReopenItem", "&Reopen", "", "Projects that were open before", nullptr, &W::HasRecent},
    {"FileMenu", "FileSeparator1", "-"},
    {"FileMenu", "FileSaveItem", "&Save", "Ctrl+S", "Save the shown unit with its form", &W::SaveClick, &W::CanSave},
    {"FileMenu", "FileSaveAllItem", "Sa&ve All", "Shift+Ctrl+S", "Save everything that was changed", &W::SaveAllClick, &W::CanSaveAll},
    {"FileMenu", "FileCloseItem", "&Close", "Ctrl+F4", "Close the shown unit", &W::CloseClick, &W::HasPage},
    {"FileMenu", "FileCloseAllItem", "Close Pro&ject", "", "Close the project with all its units", &W::CloseProjectClick, &W::HasProject},
    {"FileMenu", "FileSeparator2", "-"},
    {"FileMenu", "FileExitItem", "E&xit", "Ctrl+Q", "Leave the workbench", &W::ExitClick},
    {"EditMenu", "EditUndoItem", "&Undo", "Ctrl+Z", "", &W::UndoClick, &W::CanUndo},
    {"EditMenu", "EditRedoItem", "&Redo", "Shift+Ctrl+Z", "", &W::RedoClick, &W::CanRedo},
    {"EditMenu", "EditSeparator1", "-"},
    {"EditMenu", "EditCutItem", "Cu&t", "Ctrl+X", "", &W::CutClick, &W::HasCode},
    {"EditMenu", "EditCopyItem", "&Copy", "Ctrl+C", "", &W::CopyClick, &W::HasCode},
    {"EditMenu", "EditPasteItem", "&Paste", "Ctrl+V", "", &W::PasteClick, &W::HasCode},
    {"EditMenu", "EditSelectAll", "Select A&ll", "Ctrl+A", "", &W::SelectAllClick, &W::HasCode},
    {"EditMenu", "EditSeparator2", "-"},
    {"EditMenu", "EditCommentItem", "To&ggle Comment", "Ctrl+/", "", &W::CommentClick, &W::HasCode},
    {"SearchMenu", "SearchFindItem", "&Find...", "Ctrl+F", "", &W::FindClick, &W::HasCode},
    {"SearchMenu", "SearchReplaceItem", "&Replace...", "Ctrl+R", "", &W::ReplaceClick, &W::HasCode},
    {"SearchMenu", "SearchAgainItem", "Find &Next", "F3", "", &W::FindNextClick, &W::HasCode},
    {"SearchMenu", "SearchBackItem", "Find &Previous", "Shift+F3", "", &W::FindPreviousClick, &W::HasCode},
    {"SearchMenu", "SearchSeparator1", "-"},
    {"SearchMenu", "SearchGoToItem", "&Go to Line Number...", "Alt+G", "", &W::GoToLineClick, &W::HasCode},
    {"ViewsMenu", "ViewPrjMgrItem", "&Project Manager", "Ctrl+Alt+F11", "", &W::ShowProjectClick},
    {"ViewsMenu", "ViewMessagesItem", "&Messages", "", "What was passed over: missing files, damaged forms", &W::ShowMessagesClick},
    {"ViewsMenu", "ViewToggleFormItem", "&Toggle Form/Unit", "F12", "", &W::ToggleFormClick, &W::HasForm},
    {"ViewsMenu", "ViewNextItem", "&Next Unit", "Ctrl+Tab", "", &W::NextPageClick, &W::HasPage},
    {"ViewsMenu", "ViewPreviousItem", "Pre&vious Unit", "Shift+Ctrl+Tab", "", &W::PreviousPageClick, &W::HasPage},
    {"ViewsMenu", "ViewSeparator1", "-"},
    {"ViewsMenu", "ViewThemeItem", "Co&lors"},
    {"ProjectMenu", "ProjectOpenFormsItem", "Open All &Forms", "", "Open every unit of the project that has a form", &W::OpenFormsClick, &W::HasProject},
    {"ProjectMenu", "ProjectReloadItem", "&Reload Project", "", "Read the project file again", &W::ReloadProjectClick, &W::HasProject},
    {"ComponentMenu", "ComponentLoadItem", "&Load TGlotta Expert", "", "", &W::LoadExpertClick, &W::CanLoadExpert},
    {"ComponentMenu", "ComponentUnloadItem", "&Unload TGlotta Expert", "", "", &W::UnloadExpertClick, &W::CanUnloadExpert},
    {"ToolsMenu", "ToolsCheckItem", "&Check Files on Disk", "", "Look for open files that other programs changed", &W::CheckDisk, &W::HasPage},
    {"ToolsMenu", "ToolsSeparator1", "-"},
    {"HelpMenu", "HelpContentsItem", "&Contents", "F1", "What the expert's windows do", &W::HelpClick},
    {"HelpMenu", "HelpAboutItem", "&About Workbench...", "", "", &W::AboutClick}};

} // namespace

std::span<const HostCommand> HostCommands() {
    return Commands;
}

} // namespace glotta
