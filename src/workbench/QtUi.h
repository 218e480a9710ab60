// The Ui port on the desktop.
#pragma once
#include "platform/Form.h"
#include "platform/Ui.h"

#include <functional>
#include <memory>
#include <string>
#include <unordered_map>

class QWidget;

namespace glotta {

class ProgressWindow;
class View;

class QtUi : public Ui {
public:
    QtUi();
    ~QtUi() override;
    QtUi(const QtUi&) = delete;
    QtUi& operator=(const QtUi&) = delete;

    ModalResult MessageDlg(const std::string& text, MsgType type, const MsgButtons& buttons,
                           const std::string& caption) override;
    std::optional<std::string> InputBox(const std::string& caption, const std::string& prompt,
                                        const std::string& initial) override;
    bool Execute(FileDialog& dialog) override;
    ModalResult ShowModal(TForm& form) override;
    void Show(TForm& form) override;
    void BringToFront(TForm& form) override;
    void SetProgress(const std::string& text) override;
    bool Cancelled() override;

    // The window that shows the form, nil when none does.
    QWidget* WindowOf(const TForm& form) const;

    // Where windows appear; nil until there is a main window.
    QWidget* mainWindow = nullptr;

    // Somebody else's answers, for runs without a person. A question that nobody answers is shown.
    std::function<std::optional<ModalResult>(const std::string& text, const MsgButtons& buttons)>
        AnswerMessage;
    std::function<std::optional<std::string>(const std::string& prompt, const std::string& initial)>
        AnswerInput;
    std::function<bool(FileDialog& dialog)> AnswerFiles;
    // Runs within the loop of a modal window, once it is shown.
    std::function<void(TForm& form, QWidget& window)> UseModal;

private:
    View& Open(TForm& form, bool modal);
    void Closed(const TForm& form, bool formIsGone);
    QWidget* Parent() const;
    QWidget* ActiveModal() const; // none but windows that wait for the person
    std::unordered_map<const TForm*, View*> views_;
    std::unique_ptr<ProgressWindow> progress_;
};

} // namespace glotta
