// What all windows over a form have in common. A view only binds: what may happen, and when, is the form's
// matter.
#pragma once
#include "workbench/Bindings.h"

#include <QtGui/QCloseEvent>
#include <QtWidgets/QDialog>
#include <QtWidgets/QMainWindow>

namespace glotta {

class View {
public:
    View(QWidget& window, TForm& form, Ui& ui) : bind(ui), window_(window), form_(form), ui_(ui) {}
    virtual ~View() = default;
    View(const View&) = delete;
    View& operator=(const View&) = delete;

    QWidget& Window() { return window_; }
    // The window stands elsewhere or has another size.
    virtual void Moved() {}
    // The person closes the window; the form decides.
    void AskToClose() {
        bind.Act([this] { form_.Close(ui_, ModalResult::Cancel); });
    }

    Bindings bind;

private:
    QWidget& window_;
    TForm& form_;
    Ui& ui_;
};

// A window of a .ui file. The base is QDialog or QMainWindow.
template <class Base, class Controls, class Form> class WindowOf : public Base, public View {
public:
    WindowOf(Form& itsForm, Ui& ui, QWidget* parent) : Base(parent), View(*this, itsForm, ui), form(itsForm) {
        controls.setupUi(this);
        bind.Bind(static_cast<TForm&>(form));
        bind.Always([this] {
            if (this->windowTitle() != Q(form.caption)) this->setWindowTitle(Q(form.caption));
        });
    }
    // Escape and the window's own closing button; virtual in QDialog.
    void reject() { AskToClose(); }

protected:
    void moveEvent(QMoveEvent* event) override {
        Base::moveEvent(event);
        if (this->isVisible()) Moved();
    }
    void resizeEvent(QResizeEvent* event) override {
        Base::resizeEvent(event);
        if (this->isVisible()) Moved();
    }
    void closeEvent(QCloseEvent* event) override {
        event->ignore();
        AskToClose();
    }
    Controls controls;
    Form& form;
};

} // namespace glotta
