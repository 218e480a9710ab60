// The main window's menus and tool bar, and when their commands are enabled.
#include "mainwindow/CommandRunner.h"
#include "mainwindow/MainCommands.h"
#include "mainwindow/MainWindow.h"
#include "platform/Files.h"
#include "platform/Launch.h"
#include "platform/RegistryStore.h"

#include <filesystem>

namespace glotta {

namespace {

// The submenu that the captions lead to; those that are missing are made.
TMenuItem& Submenu(TMenuItem& top, std::string_view path) {
    TMenuItem* menu = &top;
    while (!path.empty()) {
        const std::string_view caption = path.substr(0, path.find('>'));
        path.remove_prefix(std::min(caption.size() + 1, path.size()));
        TMenuItem* below = menu->FindCaption(caption);
        menu = below ? below : &menu->Add(std::string(caption));
    }
    return *menu;
}

std::string Numbered(const char* name, int number) {
    return name + std::to_string(number);
}

} // namespace

void TfrmGlotta::BuildMenus() {
    for (const MainCommand& command : MainCommands()) {
        if (!command.menu.empty())
            AddCommand(Submenu(MainMenu.Items, command.menu), command, command.caption, false);
        if (!command.popup.empty())
            AddCommand(command.popup == "." ? PopupMenu.Items : Submenu(PopupMenu.Items, command.popup),
                       command, command.popupCaption.empty() ? command.caption : command.popupCaption, false);
        if (command.button) AddCommand(ToolBar.Items, command, command.hint.substr(0, command.hint.find('|')), true);
    }
    BuildWizardsMenu();
}

void TfrmGlotta::AddCommand(TMenuItem& parent, const MainCommand& command, std::string_view itemCaption,
                            bool isButton) {
    TMenuItem& item = parent.Add(std::string(itemCaption), std::string(command.id));
    if (item.IsSeparator()) return;
    item.SetHint(std::string(command.hint));
    item.SetTag(command.tag);
    if (command.button) item.SetImage(std::string(command.id));
    if (!isButton) item.SetShortCut(std::string(command.shortcut));
    item.OnClick = [this, &command] { Run([&] { (this->*command.execute)(); }); };
    bound_.push_back({&item, &command, isButton});
}

// Commands work on the list of the page that shows.
void TfrmGlotta::Run(const std::function<void()>& command) {
    context_.ide.UseForms(ActiveList().List());
    RunCommand(UiPort(), command);
    context_.ide.UseForms(lvFormNames.List());
    ShowFilled();
}

void TfrmGlotta::BuildWizardsMenu() {
    auto menu = std::make_unique<TMenuItem>("&Wizards", "Wizards1");
    for (int i = 0;; ++i) {
        const auto name = context_.registry.ReadString(WizardsKey, Numbered("WizardName", i));
        if (!name) break;
        TMenuItem& item = menu->Add(*name);
        item.SetTag(-i);
        item.OnClick = [this, tag = -i] { Run([&] { WizardItemClick(tag); }); };
    }
    menu->SetEnabled(menu->Count() > 0);
    MainMenu.Items.Insert(MainMenu.Items.Count() - 1, std::move(menu));
}

void TfrmGlotta::WizardItemClick(int tag) {
    const std::string program =
        context_.registry.ReadString(WizardsKey, Numbered("WizardExe", std::abs(tag))).value_or("");
    std::error_code ignored;
    if (!std::filesystem::is_regular_file(PathFromText(program), ignored)) {
        UiPort().MessageDlg("Could not find " + program, MsgType::Plain);
        return;
    }
    IOTAProject* project = context_.ide.GetActiveProject();
    const auto selected = ActiveList().SelectedRows();
    const std::string form =
        selected.empty() ? "" : ActiveList().CellText(selected.front(), FormsGrid::FileName);
    context_.launcher.Open(program,
                           "-p \"" + (project ? project->FileName() : "") + "\" -s \"" + form + "\"");
}

bool TfrmGlotta::IsEnabled(const BoundItem& bound) const {
    const MainCommand& command = *bound.command;
    if (!command.execute || (command.ready && !(this->*command.ready)())) return false;
    if (command.tag <= 0) return true;
    if (command.tag == MergeProject && !bound.isButton) return true;
    const auto selected = ActiveList().SelectedRows();
    if (command.tag == LocalizedForm && !bound.isButton)
        return !selected.empty() && !ActiveList().CellText(selected.front(), FormsGrid::Glotta).empty();
    return !selected.empty();
}

void TfrmGlotta::CheckEnableActions() {
    for (const BoundItem& bound : bound_) {
        bound.item->SetEnabled(IsEnabled(bound));
        if (bound.command->checked) bound.item->SetChecked((this->*bound.command->checked)());
    }
}

} // namespace glotta
