// The code editor over the IDE's source buffer: what is typed goes to the buffer, what the buffer takes from others
// appears here. The buffer alone remembers what can be undone.
#pragma once
#include "host/SourceEditor.h"

#include <Qsci/qsciscintilla.h>

struct SCNotification;

namespace glotta {

class CodeEditor : public QsciScintilla {
    Q_OBJECT
public:
    CodeEditor(PlainSourceEditor& source, QWidget* parent);
    ~CodeEditor() override;

    PlainSourceEditor& Source() { return source_; }
    void UndoStep();
    void RedoStep();
    void ToggleComment(); // of the selected lines
    void GoToLine(int line);
    // The selection's text, or the word at the cursor.
    QString WordOrSelection() const;
    // All edits made during its life are one undoable step.
    class Step {
    public:
        explicit Step(CodeEditor& editor) : editor_(editor) { ++editor_.depth_; }
        ~Step() { editor_.EndStep(); }
        Step(const Step&) = delete;
        Step& operator=(const Step&) = delete;

    private:
        CodeEditor& editor_;
    };
    void Restyle(); // colors of the palette in force

    std::function<void(const QPoint& global)> OnPopup; // the context menu is wanted
    std::function<void()> OnChanged;                   // text, cursor or selection

    bool event(QEvent* event) override;

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void TextModified(int position, int type, const char* text, int length, int, int, int, int, int, int);
    void EndStep();
    void ShowText();   // the whole buffer
    void ShowChange(); // what the buffer's newest step did
    void ShowPlaces(); // the view's cursor and block
    void TellPlaces();
    void Setup();
    long ToPosition(EditPos position) const;

    PlainSourceEditor& source_;
    int depth_ = 0;          // of events and steps at work
    bool echo_ = false;      // the buffer's own change comes back
    bool stepOpen_ = false;  // an edit of the event at hand went to the buffer
    bool typedKey_ = false;  // the event at hand types one character
    std::size_t typedAt_ = 0, typedVersion_ = 0; // where typing went on last
    int joined_ = 0;         // keys in the newest step
};

} // namespace glotta
