#include "workbench/Views.h"

#include "editors/Dntcedit.h"
#include "editors/Excludededitor.h"
#include "editors/Translationwizard.h"
#include "host/StringListEditor.h"
#include "editors/_gxcomboproped.h"
#include "mainwindow/MainWindow.h"
#include "scanner/Skippedstrings.h"
#include "scanner/_scan.h"
#include "settings/_expopt.h"
#include "storage/ProjectSettingsForm.h"
#include "storage/FoundPhrases.h"
#include "storage/ReplConfirm.h"
#include "storage/_badidsform.h"
#include "storage/_findphrase.h"
#include "storage/_stridrepl.h"
#include "translation/ConfigureLanguages.h"
#include "translation/ExtendedTranslations.h"
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
        Entry<TfrmBadIDs, MakeBadIDsView>(),
        Entry<TfrmConfigureLanguages, MakeConfigureLanguagesView>(),
        Entry<TfrmExcludeFromTranslation, MakeExcludeView>(),
        Entry<TfrmExtendedTranslations, MakeExtendedTranslationsView>(),
        Entry<TfrmFind, MakeFindPhraseView>(),
        Entry<TfrmFound, MakeFoundView>(),
        Entry<TfrmFoundPhrases, MakeFoundPhrasesView>(),
        Entry<TfrmGlottaComboEditor, MakeGlottaComboEditorView>(),
        Entry<TfrmGlotta, MakeMainWindowView>(),
        Entry<TfrmNotTranslate, MakeNotTranslateView>(),
        Entry<TfrmOptions, MakeOptionsView>(),
        Entry<TfrmProjectTranslationSettings, MakeProjectSettingsView>(),
        Entry<TfrmReplConfirm, MakeReplConfirmView>(),
        Entry<TfrmSkippedStrings, MakeSkippedStringsView>(),
        Entry<TfrmStrReplace, MakeStrReplaceView>(),
        Entry<TStringsEditDlg, MakeStringListView>(),
        Entry<TfrmTransEditor, MakeTransEditorView>(),
        Entry<TfrmTranslationWizard, MakeTranslationWizardView>(),
        Entry<TfrmTranslUnits, MakeTranslUnitsView>(),
    };
    const auto found = table.find(typeid(form));
    return found == table.end() ? nullptr : found->second(form, ui, parent);
}

} // namespace glotta
