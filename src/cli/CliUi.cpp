#include "cli/CliUi.h"

#include "platform/Error.h"
#include "platform/Form.h"
#include "platform/Terminal.h"
#include "platform/Text.h"

#include <cstdio>

namespace glotta {

namespace {

[[noreturn]] void Unanswered(const std::string& question) {
    throw Error("a question that no option answers: " + ReplaceStr(ReplaceStr(question, "\r\n", " "), "\r", " "));
}

} // namespace

ModalResult CliUi::MessageDlg(const std::string& text, MsgType type, const MsgButtons& buttons, const std::string&) {
    if (buttons.size() != 1)
        Unanswered(text);
    messages_.push_back({type, text});
    return buttons.front();
}

std::optional<std::string> CliUi::InputBox(const std::string&, const std::string& prompt, const std::string&) {
    Unanswered(prompt);
}

bool CliUi::Execute(FileDialog& dialog) { Unanswered(dialog.title); }

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
