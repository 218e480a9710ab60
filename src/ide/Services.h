// The operations through which every part of the expert reaches projects, units, forms and editors.
#pragma once
#include "ide/FormsList.h"
#include "ide/ToolsApi.h"
#include "platform/Ui.h"

#include <string>
#include <string_view>

namespace glotta {

class IdeServices {
public:
    IdeServices(BorlandIDEServices ide, FormsList& forms, Ui& ui) : ide_(ide), forms_(&forms), ui_(ui) {}

    IOTAProjectGroup* GetActiveProjectGroup();
    IOTAProject* GetActiveProject();
    // Without an active project: "Project is NIL!", then EGlottaSilent.
    IOTAModule* GetModuleFromFileName(const std::string& fileName);
    IOTASourceEditor* GetSourceEditorFromFileName(const std::string& fileName);
    IOTASourceEditor* GetSourceEditorFromFormName(const std::string& formName);
    IOTAModule* GetFormIdeModule(const std::string& formName);
    IOTAModule* GetCurrentIdeModule();
    static IOTAFormEditor* GetFormEditorFromModule(IOTAModule* module);
    static IOTASourceEditor* GetSourceEditorFromModule(IOTAModule* module);
    IDesigner* GetDesigner(); // of the form selected in the form list
    IDesigner* GetDesignerByFormName(const std::string& formName);
    TComponent* GetComponentOnForm(const std::string& formName, const std::string& componentName);
    TComponent* GetOwnerByName(const std::string& formName);
    bool IsDataModule(const std::string& formName);
    // "Unable to obtain the interface of form module! Please check your project source." when it fails.
    bool TestForCorrectForm(const std::string& formName);

    bool IsFileOpen(const std::string& fileName);
    bool OpenFile(const std::string& fileName, bool show);
    bool CloseFile(const std::string& fileName);
    bool CloseFileUnsaved(const std::string& fileName); // without a question
    bool SaveFile(const std::string& fileName);
    void MarkModifiedForm(const std::string& fileName);

    std::string GetUnitSource(const std::string& fileName);
    IOTASourceEditor* GetCurrentSourceEditor();
    // The class of the control that shows the text in the first editor window; empty when there is none.
    std::string GetIDEEditControlClass();
    std::string GetSelectedSourceText();
    void ReplaceSelectedSourceText(std::string_view text);
    // 1-based; only CR LF pairs count.
    static int GetLineByPos(std::string_view text, std::size_t position);
    int Pos2Line4CurrentSource(std::size_t position, std::string_view text);

    // SelectionMarker while the text being scanned is the editor's selection, else 0.
    static constexpr int SelectionMarker = 999;
    int modeMarker = 0;
    // Brought to the top when a form cannot be reached; nil while it is not open.
    TForm* mainWindow = nullptr;

    // The list that commands work on: the project's forms, or for a while another one.
    FormsList& Forms() { return *forms_; }
    void UseForms(FormsList& forms) { forms_ = &forms; }
    Ui& GetUi() { return ui_; }
    BorlandIDEServices Ide() { return ide_; }

private:
    IOTAProject& RequireActiveProject();
    BorlandIDEServices ide_;
    FormsList* forms_;
    Ui& ui_;
};

} // namespace glotta
