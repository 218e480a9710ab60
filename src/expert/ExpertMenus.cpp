// The expert's item in the IDE's main menu and its submenu in the editor windows.
#include "expert/Glottaexp.h"

#include "mainwindow/CommandRunner.h"

namespace glotta {

namespace {

constexpr std::size_t PlaceInSection = 2;

} // namespace

void TGlottaExpert::Configure() {
    if (!ports_.ide.menus) return;
    TMenuItem* section = ports_.ide.menus->MainMenu().Items.FindName(settings_.Values().MenuSection);
    if (!section) return;
    auto item = std::make_unique<TMenuItem>(MenuCaption, MenuName);
    item->SetShortCut(ShortCutToText(settings_.Values().ShortCut));
    item->OnClick = [this] { RunCommand([this] { RunItemClick(); }); };
    menuItem_ = &section->Insert(PlaceInSection, std::move(item));
}

// The IDE may have rebuilt its menus, and the item with them: only one that is still there is freed.
void TGlottaExpert::RemoveMenuItem() {
    TMenuItem* present = ports_.ide.menus ? ports_.ide.menus->MainMenu().Items.FindDeep(MenuName) : nullptr;
    if (present && present == menuItem_) present->Free();
    menuItem_ = nullptr;
}

void TGlottaExpert::RemoveSettings() {
    RemoveEditorPopupMenu();
    RemoveMenuItem();
}

void TGlottaExpert::ForEachEditWindow(const std::function<void(INTAForm&)>& act) const {
    for (int i = 0; ports_.ide.menus && i < ports_.ide.menus->FormCount(); ++i)
        if (INTAForm* form = ports_.ide.menus->GetForm(i); form && form->ClassName() == EditWindowClass)
            act(*form);
}

TMenuItem* TGlottaExpert::EditorItem(INTAForm& form) const {
    TPopupMenu* menu = form.FindPopupMenu(EditorMenuName);
    return menu ? menu->Items.FindCaption(EditorMenuCaption) : nullptr;
}

void TGlottaExpert::InstallEditorPopupMenu() {
    ForEachEditWindow([this](INTAForm& form) {
        TPopupMenu* menu = form.FindPopupMenu(EditorMenuName);
        if (!menu || EditorItem(form)) return;
        const auto command = [this](void (TGlottaExpert::*act)()) {
            return [this, act] { RunCommand([this, act] { (this->*act)(); }); };
        };
        auto item = std::make_unique<TMenuItem>(EditorMenuCaption);
        item->OnClick = [this] { PrepareTGlottaEditorMenu(); };
        item->Add("Scan selected source...", {}, command(&TGlottaExpert::TranslateSourceMenuClick));
        item->Add("Mark to skip", {}, command(&TGlottaExpert::MarkUnTranslatableSourceMenuClick));
        item->Add("-");
        item->Add("View translation", {}, command(&TGlottaExpert::ViewTranslationByIDMenuClick));
        menu->Items.Insert(menu->Items.Count(), std::move(item));
    });
    PrepareTGlottaEditorMenu();
}

void TGlottaExpert::PrepareTGlottaEditorMenu() {
    IOTASourceEditor* editor = services_.GetCurrentSourceEditor();
    const bool selected = editor && editor->View().BlockStart() != editor->View().BlockAfter();
    ForEachEditWindow([&](INTAForm& form) {
        TMenuItem* item = EditorItem(form);
        for (std::size_t i = 0; item && i < item->Count(); ++i)
            if (!(*item)[i].IsSeparator()) (*item)[i].SetEnabled(selected);
        if (TMenuItem* view = item ? item->FindCaption("View translation") : nullptr;
            view && !ports_.transEditor)
            view->SetEnabled(false);
    });
}

void TGlottaExpert::RemoveEditorPopupMenu() {
    ForEachEditWindow([](INTAForm& form) {
        TPopupMenu* menu = form.FindPopupMenu(EditorMenuName);
        for (std::size_t i = menu ? menu->Items.Count() : 0; i-- > 0;)
            if (menu->Items[i].Caption() == EditorMenuCaption) menu->Items.Delete(i);
    });
}

} // namespace glotta
