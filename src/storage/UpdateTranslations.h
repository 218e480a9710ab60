// The commands that bring the translations of the selected forms up to date, or remove them.
#pragma once
#include "ide/Services.h"

#include <functional>
#include <string>

namespace glotta {

class UpdateTranslations {
public:
    explicit UpdateTranslations(IdeServices& ide) : ide_(ide) {}

    void Updatetranslation1Click();
    void ClearTranslations1Click(); // asks first

private:
    // Acts on a form whose unit is open; true when it changed a component.
    using Act = std::function<bool(const FormsListItem&)>;
    void ForEachSelected(const std::string& what, bool clearing, const Act& act);
    void Visit(const FormsListItem& item, bool saveUnchanged, const Act& act);

    IdeServices& ide_;
};

} // namespace glotta
