// What the expert hears of the IDE and of open modules.
#pragma once
#include "ide/FormsList.h"
#include "ide/ToolsApi.h"

#include <memory>
#include <string>

namespace glotta {

class TGlottaExpert;

class TgxAddInNotifier : public IOTAIDENotifier {
public:
    explicit TgxAddInNotifier(TGlottaExpert& expert) : expert_(&expert) {}
    void FileNotification(TOTAFileNotification code, const std::string& fileName, bool& cancel) override;
    void Detach() { expert_ = nullptr; } // the expert is gone

private:
    TGlottaExpert* expert_;
};

class TgxModuleNotifier : public IOTAModuleNotifier {
public:
    // Registered with the module; `entry` may be nil. A module without form is refused by EGlottaSilent.
    static std::shared_ptr<TgxModuleNotifier> Create(TGlottaExpert& expert, FormsListItem* entry,
                                                     IOTAModule& module);

    void Unregister();
    bool Registered() const { return index_ > -1; }
    IOTAModule* Module() const { return module_; }

    void Destroyed() override;
    void ComponentRenamed(TComponent* component, const std::string& oldName,
                          const std::string& newName) override;

private:
    TgxModuleNotifier(TGlottaExpert& expert, IOTAModule& module, IOTAFormEditor& form)
        : expert_(expert), module_(&module), form_(&form) {}
    TGlottaExpert& expert_;
    IOTAModule* module_;
    IOTAFormEditor* form_;
    int index_ = -1;
};

} // namespace glotta
