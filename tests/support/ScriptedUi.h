// The user of the tests: an ordered list of expected questions and windows, each with its answer.
#pragma once
#include "platform/Form.h"
#include "platform/Ui.h"

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace glotta {

// A step that does not come next, or is left over at the end, fails the test. Everything that happens is in
// the transcript, one line each: "Warning: text -> OK", "Input title|prompt|initial -> answer", "Progress:
// text".
class ScriptedUi : public Ui {
public:
    ~ScriptedUi() override;

    // A message box with exactly this text.
    ScriptedUi& Message(std::string text, ModalResult answer = ModalResult::OK);
    // An input box with this prompt; nothing cancels it.
    ScriptedUi& Input(std::string prompt, std::optional<std::string> answer);
    // A file dialog with this title; no files cancel it.
    ScriptedUi& File(std::string title, std::vector<std::string> files);
    // The run that shows this progress text is stopped when it asks.
    ScriptedUi& Cancel(std::string progress);
    // A modal form of this class: `use` works with it and says how it is left. A form whose CloseQuery
    // refuses is shown to `use` of the next step, which has to be one for the same form.
    template <class Form> ScriptedUi& Modal(std::function<ModalResult(Form&)> use) {
        return AddForm("Modal", [use](TForm& form) -> std::optional<ModalResult> {
            Form* const expected = dynamic_cast<Form*>(&form);
            return expected ? std::optional(use(*expected)) : std::nullopt;
        });
    }
    // A window that is shown, not modal.
    template <class Form> ScriptedUi& Window(std::function<void(Form&)> use = {}) {
        return AddForm("Show", [use](TForm& form) -> std::optional<ModalResult> {
            Form* const expected = dynamic_cast<Form*>(&form);
            if (expected && use) use(*expected);
            return expected ? std::optional(ModalResult::None) : std::nullopt;
        });
    }

    const std::string& Transcript() const { return transcript_; }
    // Fails the test when steps are left over; the destructor does the same.
    void Done();

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

private:
    using UseForm = std::function<std::optional<ModalResult>(TForm&)>;
    struct Step {
        std::string kind, text;
        ModalResult result = ModalResult::None;
        std::optional<std::string> input;
        std::vector<std::string> files;
        UseForm use;
    };
    ScriptedUi& AddForm(std::string kind, UseForm use);
    // The next step when it is of this kind and text; a test failure otherwise.
    std::optional<Step> Next(const std::string& kind, const std::string& text);
    ModalResult UseNextForm(const std::string& kind, TForm& form);
    void Log(const std::string& line) { transcript_ += line + "\n"; }

    std::deque<Step> steps_;
    std::string transcript_, progress_;
};

} // namespace glotta
