// What stands around the expert in tests: programs, automation, the translation editor, a sample to work on.
#pragma once
#include "platform/Automation.h"
#include "platform/Error.h"
#include "platform/Files.h"
#include "platform/Launch.h"
#include "runtime/TransEditor.h"
#include "support/TempFolder.h"

#include <filesystem>
#include <string>

namespace glotta {

struct FakeLauncher : Launcher {
    std::string log;
    void Open(const std::string& file, const std::string& parameters) override {
        log += file + " " + parameters + "\n";
    }
};

struct FakeAutomation : Automation {
    std::string log;
    bool registered = true;

    std::string ClassIdOf(const std::string& progId) override {
        log += "class of " + progId + "; ";
        if (!registered) throw Error("class registry");
        return "{id}";
    }
    std::unique_ptr<AutomationObject> CreateObject(const std::string& progId) override {
        if (!registered) throw Error(progId + " is not registered");
        log += "create " + progId + "; ";
        return std::make_unique<Object>(log);
    }

private:
    struct Object : AutomationObject {
        explicit Object(std::string& given) : log(given) {}
        ~Object() override { log += "release; "; }
        std::string& log;
    };
};

struct FakeTransEditor : TransEditor {
    std::string log;
    bool changes = false;
    bool TransEditorDlg(TgxCustomLang& component, const std::optional<TransEditorPlace>& place) override {
        log += component.Name();
        if (place && place->extended != 0)
            log += " extended";
        else if (place)
            log += " " + std::string(StringsTypeName(place->kind)) + "[" + std::to_string(place->index) + "]";
        log += "; ";
        return changes;
    }
};

// A copy of a sample project in the folder.
inline void CopySample(const TempFolder& folder, const char* sample) {
    std::filesystem::copy(PathFromText(GLOTTA_SOURCE_DIR) / "samples" / sample, folder.Path(),
                          std::filesystem::copy_options::recursive);
}

} // namespace glotta
