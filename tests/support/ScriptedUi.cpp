#include "support/ScriptedUi.h"

#include "support/Messages.h"

#include <gtest/gtest.h>

namespace glotta {
namespace {

std::string_view NameOf(ModalResult result) {
    switch (result) {
    case ModalResult::None:
        return "None";
    case ModalResult::OK:
        return "OK";
    case ModalResult::Cancel:
        return "Cancel";
    case ModalResult::Yes:
        return "Yes";
    case ModalResult::No:
        return "No";
    case ModalResult::YesToAll:
        return "YesToAll";
    }
    return "?";
}

std::string_view NameOf(MsgType type) {
    constexpr std::string_view Names[] = {"Information", "Warning", "Error", "Confirmation", "Message"};
    return Names[static_cast<int>(type)];
}

} // namespace

ScriptedUi::~ScriptedUi() {
    Done();
}

void ScriptedUi::Done() {
    for (const Step& step : steps_)
        ADD_FAILURE() << "never asked: " << step.kind << " " << step.text;
    steps_.clear();
}

ScriptedUi& ScriptedUi::Message(std::string text, ModalResult answer) {
    Step& step = steps_.emplace_back();
    step.kind = "Message";
    step.text = std::move(text);
    step.result = answer;
    return *this;
}

ScriptedUi& ScriptedUi::Input(std::string prompt, std::optional<std::string> answer) {
    Step& step = steps_.emplace_back();
    step.kind = "Input";
    step.text = std::move(prompt);
    step.input = std::move(answer);
    return *this;
}

ScriptedUi& ScriptedUi::File(std::string title, std::vector<std::string> files) {
    Step& step = steps_.emplace_back();
    step.kind = "File";
    step.text = std::move(title);
    step.files = std::move(files);
    return *this;
}

ScriptedUi& ScriptedUi::Cancel(std::string progress) {
    Step& step = steps_.emplace_back();
    step.kind = "Cancel";
    step.text = std::move(progress);
    return *this;
}

ScriptedUi& ScriptedUi::AddForm(std::string kind, UseForm use) {
    Step& step = steps_.emplace_back();
    step.kind = std::move(kind);
    step.use = std::move(use);
    return *this;
}

std::optional<ScriptedUi::Step> ScriptedUi::Next(const std::string& kind, const std::string& text) {
    const bool isForm = kind == "Modal" || kind == "Show";
    if (steps_.empty() || steps_.front().kind != kind || (!isForm && steps_.front().text != text)) {
        ADD_FAILURE() << "unexpected: " << kind << " " << text << "\nexpected:   "
                      << (steps_.empty() ? "nothing" : steps_.front().kind + " " + steps_.front().text);
        return {};
    }
    Step step = std::move(steps_.front());
    steps_.pop_front();
    return step;
}

ModalResult ScriptedUi::MessageDlg(const std::string& text, MsgType type, const MsgButtons& buttons,
                                   const std::string& caption) {
    const std::optional<Step> step = Next("Message", text);
    const std::string fault = FaultOfMessage(text, type, buttons);
    EXPECT_EQ(fault, "") << text;
    const ModalResult answer = step ? step->result : ModalResult::Cancel;
    Log(std::string(NameOf(type)) + (caption.empty() ? "" : " [" + caption + "]") + ": " + text + " -> " +
        std::string(NameOf(answer)));
    if (step && std::find(buttons.begin(), buttons.end(), answer) == buttons.end() &&
        answer != ModalResult::Cancel)
        ADD_FAILURE() << "no such button: " << NameOf(answer) << " in " << text;
    return answer;
}

std::optional<std::string> ScriptedUi::InputBox(const std::string& caption, const std::string& prompt,
                                                const std::string& initial) {
    const std::optional<Step> step = Next("Input", prompt);
    const std::optional<std::string> answer = step ? step->input : std::nullopt;
    Log("Input " + caption + "|" + prompt + "|" + initial + " -> " + answer.value_or("Cancel"));
    return answer;
}

bool ScriptedUi::Execute(FileDialog& dialog) {
    const std::optional<Step> step = Next("File", dialog.title);
    dialog.files = step ? step->files : std::vector<std::string>();
    if (!dialog.files.empty()) dialog.fileName = dialog.files.front();
    Log(std::string(dialog.save ? "Save " : "Open ") + dialog.title + "|" + dialog.filter + " -> " +
        (dialog.files.empty() ? "Cancel" : dialog.fileName));
    return !dialog.files.empty();
}

ModalResult ScriptedUi::UseNextForm(const std::string& kind, TForm& form) {
    ModalResult result = ModalResult::Cancel;
    if (const std::optional<Step> step = Next(kind, form.caption)) {
        if (const std::optional<ModalResult> way = step->use(form))
            result = *way;
        else
            ADD_FAILURE() << "another form than expected: " << form.caption;
    }
    Log(kind + " " + form.caption + (kind == "Modal" ? " -> " + std::string(NameOf(result)) : std::string()));
    return result;
}

ModalResult ScriptedUi::ShowModal(TForm& form) {
    for (;;) {
        const std::size_t stepsBefore = steps_.size();
        const ModalResult result = UseNextForm("Modal", form);
        if (form.modalResult != ModalResult::None) // one of the form's own actions closed it
            return form.modalResult;
        if (form.Close(*this, result)) return form.modalResult; // which the form may have turned into another
        if (steps_.empty() || steps_.size() == stepsBefore) {
            ADD_FAILURE() << "the form does not close: " << form.caption;
            return result;
        }
    }
}

void ScriptedUi::Show(TForm& form) {
    UseNextForm("Show", form);
}
void ScriptedUi::BringToFront(TForm& form) {
    Log("BringToFront " + form.caption);
}
void ScriptedUi::SetProgress(const std::string& text) {
    progress_ = text;
    Log(text.empty() ? "Progress ends" : "Progress: " + text);
}

bool ScriptedUi::Cancelled() {
    if (steps_.empty() || steps_.front().kind != "Cancel" || steps_.front().text != progress_) return false;
    steps_.pop_front();
    Log("Cancelled: " + progress_);
    return true;
}

} // namespace glotta
