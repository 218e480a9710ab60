#include "host/Notifications.h"

namespace glotta {

bool Notifications::Tell(TOTAFileNotification code, const std::string& fileName) {
    bool cancel = false;
    notifiers_.ForEach([&](IOTAIDENotifier& notifier) { notifier.FileNotification(code, fileName, cancel); });
    return !cancel;
}

void Wizards::UnloadAll() {
    while (!wizards_.empty()) {
        const auto last = std::move(wizards_.back());
        wizards_.pop_back();
        last->Destroyed();
    }
}

} // namespace glotta
