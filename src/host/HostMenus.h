// The host's main menu and its editor windows, as experts find and extend them.
#pragma once
#include "ide/ToolsApi.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace glotta {

// A window with a source editor. Its view shows EditorLocalMenu as the editor's context menu.
class HostEditWindow : public INTAForm {
public:
    std::string ClassName() const override { return std::string(EditWindowClass); }
    TPopupMenu* FindPopupMenu(std::string_view name) override {
        return name == EditorLocalMenu.Name ? &EditorLocalMenu : nullptr;
    }
    std::vector<std::string> ComponentClasses() const override { return {std::string(EditControlClass)}; }
    TPopupMenu EditorLocalMenu{std::string(EditorMenuName)};
};

class HostMenus : public INTAServices {
public:
    HostMenus(); // the main menu has its sections, empty ones

    TMainMenu& MainMenu() override { return mainMenu_; }
    int FormCount() const override { return int(windows_.size()); }
    INTAForm* GetForm(int index) override;

    TMenuItem& Section(std::string_view name) const { return *mainMenu_.Items.FindName(name); }
    HostEditWindow& AddEditWindow();
    void RemoveEditWindow(const HostEditWindow& window);

private:
    TMainMenu mainMenu_{"MainMenu"};
    std::vector<std::unique_ptr<HostEditWindow>> windows_;
};

} // namespace glotta
