#include "host/ActionListEditor.h"

#include "host/FormDesigner.h"

namespace glotta {

void TActionListEditor::PrepareItem(int, TMenuItem& item) {
    auto* const designer = dynamic_cast<PlainDesigner*>(&Designer());
    for (const ClassesOnPage& category : registry_.ActionCategories()) {
        TMenuItem& page = item.Add(category.name);
        for (const std::string& className : category.classes) {
            TMenuItem& action = page.Add(className);
            action.SetEnabled(designer && designer->createAction);
            action.OnClick = [designer, className, name = category.name, list = &Component()] {
                designer->createAction(className, *list, name);
            };
        }
    }
}

} // namespace glotta
