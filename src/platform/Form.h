// What a dialog or window is made of, without a toolkit: fields, actions and a form. A view binds to them.
#pragma once
#include "platform/Ui.h"

#include <functional>
#include <string>
#include <utility>

namespace glotta {

// One control's value and state. OnView is the view's: it is called after every change made by the form.
template <class T> class TField {
public:
    TField(T value = {}) : value_(std::move(value)) {}
    const T& operator()() const { return value_; }
    // The form sets the value; the view follows.
    void Set(T value) {
        value_ = std::move(value);
        Tell();
    }
    // The person changed the value in the view: stored, then OnChange runs.
    void Enter(T value) {
        value_ = std::move(value);
        if (OnChange)
            OnChange();
    }
    bool Enabled() const { return enabled_; }
    bool Visible() const { return visible_; }
    void Enable(bool on) {
        enabled_ = on;
        Tell();
    }
    void Show(bool on) {
        visible_ = on;
        Tell();
    }

    std::function<void()> OnChange; // the form's rule
    std::function<void()> OnView;   // the view's refresh

private:
    void Tell() {
        if (OnView)
            OnView();
    }
    T value_;
    bool enabled_ = true;
    bool visible_ = true;
};

// A command of a form: menu item, button or shortcut. Enabled and Checked are asked whenever a view shows it.
struct TAction {
    std::string caption;
    std::string shortcut; // text form, as in "Ctrl+Del"; empty for none
    std::string hint;
    std::function<void()> execute;
    std::function<bool()> enabled; // empty: always
    std::function<bool()> checked; // empty: never

    bool Enabled() const { return !enabled || enabled(); }
    bool Checked() const { return checked && checked(); }
    // Does nothing while disabled.
    void Execute() const {
        if (Enabled() && execute)
            execute();
    }
};

class TForm {
public:
    virtual ~TForm() {
        if (OnGone)
            OnGone();
    }
    std::string caption;

    // Asked before the form closes; false keeps it open. `result` is the way out, and `modalResult` too: the
    // answer may turn that into another.
    virtual bool CloseQuery(Ui&, ModalResult /*result*/) { return true; }
    // Closes a modal form (or hides another) when CloseQuery agrees. The view acts on OnClose.
    bool Close(Ui& ui, ModalResult result) {
        modalResult = result;
        if (!CloseQuery(ui, result)) {
            modalResult = ModalResult::None;
            return false;
        }
        if (OnClose)
            OnClose();
        return true;
    }
    ModalResult modalResult = ModalResult::None;
    std::function<void()> OnClose; // the view's
    std::function<void()> OnView;  // the view's: the form changed as a whole
    std::function<void()> OnGone;  // the view's: the form ends while its window is open; nothing of it is left to read
};

} // namespace glotta
