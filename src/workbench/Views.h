// Which window shows which form.
#pragma once
#include "workbench/View.h"

namespace glotta {

// Nil for a form that no window is made for.
View* MakeView(TForm& form, Ui& ui, QWidget* parent);

class TfrmConfigureLanguages;
class TfrmFound;
class TfrmGlotta;
class TfrmOptions;
class TfrmSkippedStrings;
class TfrmTransEditor;
class TfrmTranslUnits;
View* MakeConfigureLanguagesView(TfrmConfigureLanguages& form, Ui& ui, QWidget* parent);
View* MakeFoundView(TfrmFound& form, Ui& ui, QWidget* parent);
View* MakeMainWindowView(TfrmGlotta& form, Ui& ui, QWidget* parent);
View* MakeOptionsView(TfrmOptions& form, Ui& ui, QWidget* parent);
View* MakeSkippedStringsView(TfrmSkippedStrings& form, Ui& ui, QWidget* parent);
View* MakeTransEditorView(TfrmTransEditor& form, Ui& ui, QWidget* parent);
View* MakeTranslUnitsView(TfrmTranslUnits& form, Ui& ui, QWidget* parent);

} // namespace glotta
