#include "mainwindow/MainWindow.h"
#include "ui_MainWindowView.h"
#include "workbench/ActionBar.h"
#include "workbench/MenuAdapter.h"
#include "workbench/Placement.h"
#include "workbench/Views.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QStyle>

namespace glotta {

namespace {

class MainWindowView : public WindowOf<QMainWindow, Ui_MainWindowView, TfrmGlotta> {
public:
    MainWindowView(TfrmGlotta& f, Ui& ui, QWidget* parent)
        : WindowOf(f, ui, parent), menu_(std::make_unique<MenuAdapter>(*controls.MainMenu, form.MainMenu, false)),
          buttons_(std::make_unique<MenuAdapter>(*controls.ToolBar, form.ToolBar)) {
        auto& c = controls;
        setWindowFlag(Qt::Window);
        for (int page = 0; page < int(TfrmGlotta::PageCaptions.size()); ++page)
            c.pcForms->setTabText(page, Q(TfrmGlotta::PageCaptions[std::size_t(page)]));
        bind.Bind(*c.pcForms, form.pcForms);
        BindList(*c.lvFormNames, form.lvFormNames);
        BindList(*c.lvExternalFiles, form.lvExternalFiles);
        bind.BindColumns(*c.lvFormNames, form.ColumnWidths);
        c.lvExternalFiles->SetColumnWidths(form.ColumnWidths());
        for (TField<std::string>& panel : form.StatusBar) {
            auto* label = new QLabel(this);
            label->setMinimumWidth(140);
            c.StatusBar->addWidget(label);
            bind.Bind(*label, panel);
        }
        if (form.Placement()) Place(*this, *form.Placement());
        bind.AtEnd([this] {
            menu_.reset();
            buttons_.reset();
        });
        bind.Follow(form.StayOnTop, [this] { StayOnTop(); });
        c.lvFormNames->setFocus();
    }
    void Moved() override {
        if (isWindow()) form.Placement.Enter(PlacementOf(*this));
    }

protected:
    // The host has many of these keys for commands of its own. Docked in it, this window's are meant while the
    // focus is in here.
    bool event(QEvent* event) override {
        const bool asks = event->type() == QEvent::ShortcutOverride;
        QAction* const command = menu_ && (asks || event->type() == QEvent::KeyPress)
                                     ? menu_->ActionOf(static_cast<QKeyEvent*>(event)->keyCombination())
                                     : nullptr;
        if (!command) return QMainWindow::event(event);
        event->accept();
        if (!asks) {
            menu_->Refresh(); // what is enabled now
            command->trigger();
        }
        return true;
    }

private:
    void BindList(GridView& view, FormsGrid& list) {
        bind.Bind(view, list);
        view.RowIcon = [&list](int row) {
            static const QIcon icons[] = {QApplication::style()->standardIcon(QStyle::SP_FileIcon),
                                          QApplication::style()->standardIcon(QStyle::SP_DialogApplyButton)};
            return icons[list.ImageIndex(std::size_t(row))];
        };
        view.OnActivated = [this](int row) {
            bind.Act([&] { form.lvFormNamesDblClick(std::size_t(row)); });
        };
        view.OnPopup = [this](const QPoint& at) { PopUp(form.PopupMenu, *this, at); };
    }

    // Windows take this flag while they are hidden only.
    void StayOnTop() {
        if (windowFlags().testFlag(Qt::WindowStaysOnTopHint) == form.StayOnTop() || !isWindow()) return;
        const bool shown = isVisible();
        setWindowFlag(Qt::WindowStaysOnTopHint, form.StayOnTop());
        setVisible(shown);
    }

    std::unique_ptr<MenuAdapter> menu_, buttons_;
};

} // namespace

View* MakeMainWindowView(TfrmGlotta& form, Ui& ui, QWidget* parent) {
    return new MainWindowView(form, ui, parent);
}

} // namespace glotta
