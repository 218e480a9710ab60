#include "mainwindow/CommandRunner.h"

#include "platform/Error.h"

namespace glotta {

bool RunCommand(Ui& ui, const std::function<void()>& command) {
    try {
        command();
        return true;
    } catch (const EGlottaSilent&) {
    } catch (const std::exception& error) {
        ui.MessageDlg(error.what(), MsgType::Error);
    }
    return false;
}

} // namespace glotta
