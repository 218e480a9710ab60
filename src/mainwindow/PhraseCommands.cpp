// Finding and replacing a phrase in the translations.
#include "mainwindow/MainWindow.h"
#include "runtime/TransEditor.h"
#include "storage/FindPhrase.h"

namespace glotta {

void TfrmGlotta::Findword1Click() {
    FindPhrase(context_.ide, translation_).Findword1Click(context_.registry, foundPhrases_);
}

void TfrmGlotta::Replacephrase1Click() {
    FindPhrase find(context_.ide, translation_);
    if (context_.transEditor) find.OnChangeStrID = context_.transEditor->OnChangeStrID;
    find.Replacephrase1Click(context_.registry);
}

} // namespace glotta
