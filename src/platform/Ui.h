// How the expert asks and tells. Implemented by the workbench, by the command line and, for tests, by ScriptedUi.
#pragma once
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace glotta {

class TForm;

enum class MsgType { Information, Warning, Error, Confirmation, Plain };
// Values as a VCL modal result has them.
enum class ModalResult { None = 0, OK = 1, Cancel = 2, Yes = 6, No = 7, YesToAll = 14 };
using MsgButtons = std::vector<ModalResult>;

struct FileDialog {
    bool save = false;
    std::string title;
    std::string defaultExtension;
    std::string filter; // "Text (*.txt)|*.txt|..."
    int filterIndex = 1;
    std::string fileName;
    bool allowMultiSelect = false;
    bool mustExist = true; // of files to open
    std::vector<std::string> files; // the answer
};

class Ui {
public:
    virtual ~Ui() = default;

    // `caption` is empty for the dialog type's own.
    virtual ModalResult MessageDlg(const std::string& text, MsgType type, const MsgButtons& buttons = {ModalResult::OK},
                                   const std::string& caption = {}) = 0;
    // Nothing when cancelled.
    virtual std::optional<std::string> InputBox(const std::string& caption, const std::string& prompt,
                                                const std::string& initial) = 0;
    virtual bool Execute(FileDialog& dialog) = 0; // false when cancelled
    virtual ModalResult ShowModal(TForm& form) = 0;
    virtual void Show(TForm& form) = 0; // not modal; the form outlives its window
    virtual void BringToFront(TForm& form) = 0;

    // The splash or progress text; empty hides it. Use Progress, which hides it on every way out.
    virtual void SetProgress(const std::string& text) = 0;
    // Whether the person asked to stop what the progress text shows. Long runs ask between two steps of work.
    virtual bool Cancelled() { return false; }
};

// Shows a progress text for its life.
class Progress {
public:
    Progress(Ui& ui, const std::string& text) : ui_(ui) { ui_.SetProgress(text); }
    ~Progress() { Close(); }
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    void Text(const std::string& text) { ui_.SetProgress(text); }
    bool Cancelled() const { return ui_.Cancelled(); }
    void Close() {
        if (open_)
            ui_.SetProgress({});
        open_ = false;
    }

private:
    Ui& ui_;
    bool open_ = true;
};

} // namespace glotta
