#include "cli/CliUi.h"

#include "platform/Error.h"
#include "platform/Form.h"
#include "platform/Terminal.h"
#include "platform/Text.h"

#include <algorithm>
#include <cstdio>

namespace glotta {

namespace {

[[noreturn]] void Unanswered(const std::string& question) {
    throw Error("a question that no option answers: " + ReplaceStr(ReplaceStr(question, "\r\n", " "), "\r", " "));
}

} // namespace

ModalResult CliUi::MessageDlg(const std::string& text, MsgType type, const MsgButtons& buttons, const std::string&) {
    if (buttons.size() == 1) {
        messages_.push_back({type, text});
        return buttons.front();
    }
    for (const Answered& known : answers_)
        if (text.find(known.part) != std::string::npos &&
            std::find(buttons.begin(), buttons.end(), known.answer) != buttons.end())
            return known.answer;
    Unanswered(text);
}

std::optional<std::string> CliUi::InputBox(const std::string&, const std::string& prompt, const std::string&) {
    const auto found = inputs_.find(prompt);
    if (found == inputs_.end())
        Unanswered(prompt);
    return found->second;
}

bool CliUi::Execute(FileDialog& dialog) {
    const auto found = files_.find(dialog.title);
    if (found == files_.end())
        Unanswered(dialog.title);
    dialog.fileName = found->second;
    dialog.files = {found->second};
    return true;
}

ModalResult CliUi::ShowModal(TForm& form) { Unanswered(form.caption); }

void CliUi::SetProgress(const std::string& text) {
    if (!StandardErrorIsTerminal())
        return;
    std::size_t characters = CharCount(text);
    std::string line = "\r" + text;
    if (shown_ > characters)
        line.append(shown_ - characters, ' ');
    line += text.empty() ? "\r" : "";
    std::fputs(line.c_str(), stderr);
    std::fflush(stderr);
    shown_ = characters;
}

} // namespace glotta
