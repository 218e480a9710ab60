#include "workbench/Views.h"

#include "mainwindow/MainWindow.h"
#include "scanner/Skippedstrings.h"
#include "scanner/_scan.h"
#include "settings/_expopt.h"
#include "translation/ConfigureLanguages.h"
#include "translation/TransEditor.h"
#include "translation/TranslUnits.h"

#include <typeindex>
#include <unordered_map>

namespace glotta {

namespace {

using Make = View* (*)(TForm&, Ui&, QWidget*);

template <class Form, View* (*make)(Form&, Ui&, QWidget*)> std::pair<const std::type_index, Make> Entry() {
    return {typeid(Form),
            [](TForm& form, Ui& ui, QWidget* parent) { return make(static_cast<Form&>(form), ui, parent); }};
}

} // namespace

View* MakeView(TForm& form, Ui& ui, QWidget* parent) {
    static const std::unordered_map<std::type_index, Make> table = {
        Entry<TfrmConfigureLanguages, MakeConfigureLanguagesView>(),
        Entry<TfrmFound, MakeFoundView>(),
        Entry<TfrmGlotta, MakeMainWindowView>(),
        Entry<TfrmOptions, MakeOptionsView>(),
        Entry<TfrmSkippedStrings, MakeSkippedStringsView>(),
        Entry<TfrmTransEditor, MakeTransEditorView>(),
        Entry<TfrmTranslUnits, MakeTranslUnitsView>(),
    };
    const auto found = table.find(typeid(form));
    return found == table.end() ? nullptr : found->second(form, ui, parent);
}

} // namespace glotta
