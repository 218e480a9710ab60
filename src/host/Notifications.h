// Who listens to the IDE and to its modules, and telling them.
#pragma once
#include "ide/ToolsApi.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>

namespace glotta {

// Notifiers by index. Those that are told may remove themselves or others, and add new ones, meanwhile.
template <class Notifier> class Notifiers {
public:
    int Add(std::shared_ptr<Notifier> notifier) {
        notifiers_.emplace(next_, std::move(notifier));
        return next_++;
    }
    void Remove(int index) { notifiers_.erase(index); }
    bool Empty() const { return notifiers_.empty(); }
    template <class Act> void ForEach(Act act) {
        const auto listening = notifiers_;
        for (const auto& [index, notifier] : listening)
            if (notifiers_.contains(index)) act(*notifier);
    }
    // The object that they listen to goes away.
    void Destroy() {
        ForEach([](Notifier& notifier) { notifier.Destroyed(); });
        notifiers_.clear();
    }

private:
    std::map<int, std::shared_ptr<Notifier>> notifiers_;
    int next_ = 0;
};

class Notifications : public IOTAServices {
public:
    int AddNotifier(std::shared_ptr<IOTAIDENotifier> notifier) override {
        return notifiers_.Add(std::move(notifier));
    }
    void RemoveNotifier(int index) override { notifiers_.Remove(index); }

    // False when a notifier forbids it.
    bool Tell(TOTAFileNotification code, const std::string& fileName);

private:
    Notifiers<IOTAIDENotifier> notifiers_;
};

// The experts that packages brought.
class Wizards : public IOTAWizardServices {
public:
    void RegisterPackageWizard(std::shared_ptr<IOTAWizard> wizard) override {
        wizards_.push_back(std::move(wizard));
    }
    // Unloads the packages, the last one first.
    void UnloadAll();
    std::size_t Count() const { return wizards_.size(); }

private:
    std::vector<std::shared_ptr<IOTAWizard>> wizards_;
};

} // namespace glotta
