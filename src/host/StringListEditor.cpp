#include "host/StringListEditor.h"

#include "platform/Text.h"

namespace glotta {

TStringsEditDlg::TStringsEditDlg(Ui& ui, const std::vector<std::string>& lines) : ui_(ui) {
    caption = "String List Editor";
    std::string text;
    for (const std::string& line : lines)
        text += line + "\r\n";
    Memo.Set(std::move(text));
    Memo.OnChange = [this] {
        changed_ = true;
        Count();
    };
    OKButton.caption = "OK";
    OKButton.execute = [this] { Close(ui_, ModalResult::OK); };
    CancelButton.caption = "Cancel";
    CancelButton.execute = [this] { Close(ui_, ModalResult::Cancel); };
    Count();
}

std::vector<std::string> TStringsEditDlg::Lines() const {
    return SplitLines(Memo());
}

void TStringsEditDlg::Count() {
    const std::size_t count = Lines().size();
    LineCount.Set(std::to_string(count) + (count == 1 ? " line" : " lines"));
}

void TStringListProperty::Edit() {
    TStringsEditDlg dialog(ui_, Component().GetStrings(GetName()));
    // A list that nobody typed in keeps also items that hold line ends.
    if (ui_.ShowModal(dialog) != ModalResult::OK || !dialog.Changed()) return;
    Component().BeforeWrite(); // what the component holds itself is not lost when it reads the list
    Component().SetStrings(GetName(), dialog.Lines());
    Component().Loaded();
    Modified();
}

} // namespace glotta
