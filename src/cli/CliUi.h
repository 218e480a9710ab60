// The command line's answers to what the expert asks: from options, never a guess.
#pragma once
#include "platform/Ui.h"

#include <string>
#include <unordered_map>
#include <utility>
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

    // What options answer beforehand, each as often as it is asked; of several that fit the first one counts.
    // Questions with this part in their text (empty: all) that offer the answer.
    void Answer(std::string part, ModalResult answer) { answers_.push_back({std::move(part), answer}); }
    void AnswerInput(std::string prompt, std::string text) {
        inputs_.insert_or_assign(std::move(prompt), std::move(text));
    }
    void AnswerFile(std::string title, std::string file) {
        files_.insert_or_assign(std::move(title), std::move(file));
    }

    // A message with one button is taken note of; a question without an answer is an Error that quotes it.
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
    struct Answered {
        std::string part;
        ModalResult answer;
    };
    std::vector<Message> messages_;
    std::vector<Answered> answers_;
    std::unordered_map<std::string, std::string> inputs_, files_; // by prompt, by title
    std::size_t shown_ = 0; // characters of progress on the terminal's line
};

} // namespace glotta
