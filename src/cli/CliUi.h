// The command line's answers to what the expert asks: from options, never a guess.
#pragma once
#include "platform/Ui.h"

#include <string>
#include <vector>

namespace glotta {

class CliUi : public Ui {
public:
    // Messages of the expert, one line each, in the order in which they came.
    struct Message {
        MsgType type;
        std::string text;
    };
    const std::vector<Message>& Messages() const { return messages_; }
    void ClearMessages() { messages_.clear(); }

    // A message with one button is taken note of; a question is an Error that quotes it.
    ModalResult MessageDlg(const std::string& text, MsgType type, const MsgButtons& buttons,
                           const std::string& caption) override;
    std::optional<std::string> InputBox(const std::string& caption, const std::string& prompt,
                                        const std::string& initial) override;
    bool Execute(FileDialog& dialog) override;
    ModalResult ShowModal(TForm& form) override;
    void Show(TForm&) override {}
    void BringToFront(TForm&) override {}
    // Shown on a terminal only.
    void SetProgress(const std::string& text) override;

private:
    std::vector<Message> messages_;
    std::size_t shown_ = 0; // characters of progress on the terminal's line
};

} // namespace glotta
