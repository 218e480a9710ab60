// A form as it was before a change of several steps, which it can be brought back to.
#pragma once
#include "ide/Services.h"
#include "runtime/CustomLang.h"

#include <string>
#include <unordered_set>
#include <utility>
#include <vector>

namespace glotta {

class FormTakeBack {
public:
    // Of an open form it remembers unit and localization components; one that is closed needs none of that:
    // it is closed again without saving.
    FormTakeBack(IdeServices& ide, FormsListItem& item);

    bool WasOpen() const { return wasOpen_; }
    // Brings back what was there. Holds as long as nothing of the form was saved.
    void TakeBack();

private:
    void RememberUnit(IOTAModule& module);
    void UndoUnit();
    void RestoreComponents(IOTAFormEditor& editor);
    IdeServices& ide_;
    std::string formName_, fileName_;
    FormsListItem entry_;
    bool wasOpen_, wasModified_ = false;
    std::vector<std::pair<IOTASourceEditor*, std::string>> texts_;
    std::unordered_set<const TComponent*> components_;
    std::vector<std::pair<TgxCustomLang*, std::vector<FormProperty>>> properties_;
};

} // namespace glotta
