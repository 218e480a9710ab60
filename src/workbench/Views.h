// Which window shows which form.
#pragma once
#include "workbench/View.h"

namespace glotta {

// Nil for a form that no window is made for.
View* MakeView(TForm& form, Ui& ui, QWidget* parent);

class TfrmBadIDs;
class TfrmConfigureLanguages;
class TfrmExcludeFromTranslation;
class TStringsEditDlg;
class TfrmExtendedTranslations;
class TfrmFind;
class TfrmFound;
class TfrmFoundPhrases;
class TfrmGlotta;
class TfrmGlottaComboEditor;
class TfrmNotTranslate;
class TfrmOptions;
class TfrmReplConfirm;
class TfrmProjectTranslationSettings;
class TfrmSkippedStrings;
class TfrmStrReplace;
class TfrmTransEditor;
class TfrmTranslationWizard;
class TfrmTranslUnits;
View* MakeBadIDsView(TfrmBadIDs& form, Ui& ui, QWidget* parent);
View* MakeConfigureLanguagesView(TfrmConfigureLanguages& form, Ui& ui, QWidget* parent);
View* MakeExcludeView(TfrmExcludeFromTranslation& form, Ui& ui, QWidget* parent);
View* MakeExtendedTranslationsView(TfrmExtendedTranslations& form, Ui& ui, QWidget* parent);
View* MakeFindPhraseView(TfrmFind& form, Ui& ui, QWidget* parent);
View* MakeFoundPhrasesView(TfrmFoundPhrases& form, Ui& ui, QWidget* parent);
View* MakeFoundView(TfrmFound& form, Ui& ui, QWidget* parent);
View* MakeGlottaComboEditorView(TfrmGlottaComboEditor& form, Ui& ui, QWidget* parent);
View* MakeMainWindowView(TfrmGlotta& form, Ui& ui, QWidget* parent);
View* MakeNotTranslateView(TfrmNotTranslate& form, Ui& ui, QWidget* parent);
View* MakeOptionsView(TfrmOptions& form, Ui& ui, QWidget* parent);
View* MakeProjectSettingsView(TfrmProjectTranslationSettings& form, Ui& ui, QWidget* parent);
View* MakeReplConfirmView(TfrmReplConfirm& form, Ui& ui, QWidget* parent);
View* MakeSkippedStringsView(TfrmSkippedStrings& form, Ui& ui, QWidget* parent);
View* MakeStrReplaceView(TfrmStrReplace& form, Ui& ui, QWidget* parent);
View* MakeStringListView(TStringsEditDlg& form, Ui& ui, QWidget* parent);
View* MakeTransEditorView(TfrmTransEditor& form, Ui& ui, QWidget* parent);
View* MakeTranslationWizardView(TfrmTranslationWizard& form, Ui& ui, QWidget* parent);
View* MakeTranslUnitsView(TfrmTranslUnits& form, Ui& ui, QWidget* parent);

} // namespace glotta
