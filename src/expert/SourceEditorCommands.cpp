// The commands of the editor's context menu: on the text that is selected in the current source editor.
#include "expert/Glottaexp.h"

#include "mainwindow/CommandRunner.h"
#include "platform/Files.h"
#include "runtime/Record.h"
#include "runtime/TransEditor.h"
#include "scanner/SourceMarks.h"

#include <algorithm>
#include <optional>

namespace glotta {

namespace {

std::optional<TransEditorPlace> FindIdentifier(const TgxCustomLang& glotta, const std::string& id) {
    const std::string start = id + ItemDelimiter;
    for (int kind = 0; kind < StringsTypeCount; ++kind) {
        const TStringList& records = glotta.Strings(TStringsType(kind));
        for (std::size_t i = 0; i < records.Count(); ++i)
            if (records[i].starts_with(start)) return TransEditorPlace{TStringsType(kind), int(i)};
    }
    return {};
}

} // namespace

bool TGlottaExpert::CurrentFileIsInProject() {
    IOTASourceEditor* editor = services_.GetCurrentSourceEditor();
    if (!editor) return false;
    const std::string file = editor->FileName();
    IOTAProject* project = services_.GetActiveProject();
    const auto isFile = [&](const IOTAModuleInfo& info) { return SameFileName(info.fileName, file); };
    if (project && std::any_of(project->Modules().begin(), project->Modules().end(), isFile)) return true;
    ports_.ui.MessageDlg("Current project doesn't include " + file + " file!", MsgType::Error);
    return false;
}

void TGlottaExpert::MarkUnTranslatableSourceMenuClick() {
    if (GetSelectedSourceText().empty()) {
        ports_.ui.MessageDlg("There are no lines selected in the source editor!", MsgType::Error);
        return;
    }
    MarkSourceSelectionToSkip(services_);
}

void TGlottaExpert::TranslateSourceMenuClick() {
    RunItemClick();
    if (!CurrentFileIsInProject() || !window_) return;
    struct SelectionMode {
        explicit SelectionMode(int& marker) : marker_(marker) { marker_ = IdeServices::SelectionMarker; }
        ~SelectionMode() { marker_ = 0; }
        int& marker_;
    };
    {
        const SelectionMode mode(services_.modeMarker);
        if (forms_.Selected().empty())
            window_->TranslateUnit1Click();
        else
            window_->Translatesource1Click();
    }
    window_->ShowFilled();
}

void TGlottaExpert::ViewTranslationByIDMenuClick() {
    const std::string id = GetSelectedSourceText();
    RunItemClick();
    if (!CurrentFileIsInProject()) return;
    const auto selected = forms_.Selected();
    if (selected.empty() || !window_ || !ports_.transEditor) return;
    const FormsListItem form = *selected.front();
    TgxCustomLang* glotta = window_->Translation().GetGlotta(form.formName);
    if (!glotta) {
        ports_.ui.MessageDlg("Current form is not translated!", MsgType::Error);
        return;
    }
    const auto place = FindIdentifier(*glotta, id);
    if (!place) {
        ports_.ui.MessageDlg(id + " is not used as string identifier!", MsgType::Error);
        return;
    }
    if (ports_.transEditor->TransEditorDlg(*glotta, place)) services_.MarkModifiedForm(form.fileName);
}

} // namespace glotta
