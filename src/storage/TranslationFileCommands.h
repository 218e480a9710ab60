// The commands that save the translations of forms into a translation file, and load or merge them from one.
#pragma once
#include "ide/Services.h"
#include "runtime/TranslationFiles.h"
#include "translation/FormTranslation.h"

#include <functional>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace glotta {

class ExpertSettings;
class TGlottaProjectSettings;

// One object runs one command, on the forms list that the IDE services use.
class TranslationFileCommands {
public:
    // The numbers that menu items and buttons carry.
    static constexpr int Project = -1, SelectedForms = 111, MergeForms = 112, MergeProject = 113;

    // Without settings of the project no file name is proposed.
    TranslationFileCommands(IdeServices& ide, FormTranslation& translation, ExpertSettings& settings,
                            const TGlottaProjectSettings* project);

    void sbSaveAllClick(int mode);
    void sbLoadAllClick(int mode);

    // Whether any entry of the list, or the one given, is translated.
    bool CheckTGlotta(bool wholeList, const FormsListItem* item);
    // The delimiter that a file was written with; the expert's own for a file that does not tell.
    std::string GetGLTFileDelimiter(const std::string& fileName);
    // Asks for the delimiter; `newDelimiter` is the proposal and the answer. False ends the command.
    bool AskForDelimiter(const std::string& oldDelimiter, const std::string& fileName,
                         std::string& newDelimiter);

    void SaveProjectToGLTFile(const std::string& fileName, const std::string& delimiter);
    void SaveProjectToGLBFile(const std::string& fileName);
    void LoadProjFromFile(const std::string& fileName, bool merge);

    // One form, by its caption in the list. A form without unit or component is passed over.
    void SaveFormToFile(TranslationFiles& files, const std::string& formName, const std::string& fileName,
                        const std::string& delimiter);
    void LoadFormFromFile(TranslationFiles& files, const std::string& formName, const std::string& fileName);
    void MergeFormFromFile(TranslationFiles& files, const std::string& formName, const std::string& fileName);

    // Forms that were saved, or found in the file and loaded or merged.
    int FormsDone() const { return formsDone_; }

private:
    using Items = std::vector<FormsListItem*>;
    enum class OnFailure { Raise, TellAndEnd, TellAndGoOn };
    // What happens with the component of a form; false when nothing changed.
    using Act = std::function<bool(TgxCustomLang&)>;

    bool MayStart(bool project);
    std::optional<std::string> AskForFile(bool save);
    std::string ProposedFile() const;
    Items Translated();
    void SaveForms(const Items& items, const std::string& fileName, const std::string& delimiter, bool insert,
                   OnFailure onFailure);
    bool SaveGuarded(TranslationFiles& files, FormsListItem& item, const std::string& fileName,
                     const std::string& delimiter, bool insert, OnFailure onFailure);
    void LoadForms(const Items& items, const std::string& fileName, bool merge, bool insert);
    void LoadForm(const FormsListItem& item, const Act& load);
    FormsListItem* Find(const std::string& formName);
    TranslationFiles Files();

    IdeServices& ide_;
    FormTranslation& translation_;
    ExpertSettings& settings_;
    const TGlottaProjectSettings* project_;
    std::unordered_map<std::string, FormsListItem*> byName_; // the first of each name
    int formsDone_ = 0;
};

} // namespace glotta
