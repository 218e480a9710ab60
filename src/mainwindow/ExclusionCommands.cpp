// The main window's command on what is kept out of translation.
#include "editors/ExcludeCommand.h"
#include "mainwindow/MainWindow.h"

namespace glotta {

void TfrmGlotta::Excludeproperties1Click() {
    ExcludeProperties(context_.ide, translation_, context_.registry);
}

} // namespace glotta
