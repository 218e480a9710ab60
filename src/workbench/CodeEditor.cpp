#include "workbench/CodeEditor.h"

#include "workbench/CodeColors.h"
#include "workbench/QtText.h"

#include <QtCore/QTimer>
#include <QtGui/QContextMenuEvent>
#include <QtGui/QKeyEvent>

namespace glotta {
namespace {

constexpr int WordsPerStep = 40; // keys that one undo takes back at most

bool IsEdit(int type) {
    return type & (QsciScintillaBase::SC_MOD_INSERTTEXT | QsciScintillaBase::SC_MOD_DELETETEXT);
}

} // namespace

CodeEditor::CodeEditor(PlainSourceEditor& source, QWidget* parent) : QsciScintilla(parent), source_(source) {
    Setup();
    ShowText();
    ShowPlaces();
    connect(this, &QsciScintillaBase::SCN_MODIFIED, this, &CodeEditor::TextModified);
    connect(this, &QsciScintillaBase::SCN_UPDATEUI, this, [this](int) { TellPlaces(); });
    source_.OnView = [this] { ShowChange(); };
    source_.View().OnMoved = [this] { ShowPlaces(); };
    source_.View().OnScroll = [this] { SendScintilla(SCI_SETFIRSTVISIBLELINE, source_.View().TopLine() - 1); };
}

CodeEditor::~CodeEditor() {
    source_.OnView = nullptr;
    source_.View().OnMoved = nullptr;
    source_.View().OnScroll = nullptr;
}

void CodeEditor::Setup() {
    setUtf8(true);
    setEolMode(EolWindows);
    SendScintilla(SCI_SETUNDOCOLLECTION, 0UL);
    SendScintilla(SCI_SETMODEVENTMASK, SC_MOD_INSERTTEXT | SC_MOD_DELETETEXT | SC_PERFORMED_USER);
    SendScintilla(SCI_SETSCROLLWIDTHTRACKING, 1UL);
    SendScintilla(SCI_SETSCROLLWIDTH, 100UL);
    SendScintilla(SCI_SETMARGINLEFT, 0UL, 4L);
    setTabWidth(2);
    setIndentationsUseTabs(false);
    setAutoIndent(true);
    setMarginLineNumbers(0, true);
    setFolding(PlainFoldStyle, 2);
    setMarginWidth(1, 0);
    setBraceMatching(SloppyBraceMatch);
    setCaretLineVisible(true);
    // The keys of undo and redo are commands of the menu, and the buffer's.
    for (int key : {'Z', 'Y', 'L', 'D', 'T'})
        SendScintilla(SCI_CLEARCMDKEY, static_cast<unsigned long>(key | (SCMOD_CTRL << 16)));
    SetCodeColors(*this, source_.FileName());
    connect(this, &QsciScintilla::linesChanged, this, [this] { setMarginWidth(0, "0" + QString::number(lines())); });
}

void CodeEditor::Restyle() {
    SetCodeColors(*this, source_.FileName());
}

// --- the person's edits ---

bool CodeEditor::event(QEvent* event) {
    const Step step(*this);
    return QsciScintilla::event(event);
}

void CodeEditor::keyPressEvent(QKeyEvent* event) {
    const QString text = event->text();
    typedKey_ = text.size() == 1 && text[0].isPrint();
    QsciScintilla::keyPressEvent(event);
    typedKey_ = false;
}

void CodeEditor::EndStep() {
    if (--depth_ > 0 || !stepOpen_) return;
    stepOpen_ = false;
    // The buffer keeps line ends whole; where that made it differ, it is right.
    if (source_.Buffer().Text().size() != std::size_t(SendScintilla(SCI_GETLENGTH))) ShowText();
    if (OnChanged) OnChanged();
}

void CodeEditor::TextModified(int position, int type, const char* text, int length, int, int, int, int, int, int) {
    if (echo_ || !IsEdit(type)) return;
    const auto begin = std::size_t(position), size = std::size_t(length);
    TextEdit edit{begin, begin, {}};
    if (type & SC_MOD_INSERTTEXT)
        edit.text.assign(text, size);
    else
        edit.end = begin + size;
    const bool typesOn = typedKey_ && begin == typedAt_ && source_.Buffer().Version() == typedVersion_ &&
                         joined_ < WordsPerStep;
    echo_ = true;
    source_.Type({edit}, stepOpen_ || typesOn);
    echo_ = false;
    joined_ = typesOn ? joined_ + 1 : 0;
    typedAt_ = typedKey_ ? begin + edit.text.size() : std::string::npos;
    typedVersion_ = source_.Buffer().Version();
    stepOpen_ = true;
    if (depth_ > 0) return;
    // By the program. While the control tells of a change it takes no other.
    ++depth_;
    QTimer::singleShot(0, this, [this] { EndStep(); });
}

void CodeEditor::UndoStep() {
    source_.Undo();
}

void CodeEditor::RedoStep() {
    source_.Redo();
}

void CodeEditor::ToggleComment() {
    int from, fromColumn, to, toColumn;
    getSelection(&from, &fromColumn, &to, &toColumn);
    if (from < 0) getCursorPosition(&from, &fromColumn), to = from;
    else if (toColumn == 0 && to > from) --to;
    const Step step(*this);
    bool all = true;
    for (int line = from; line <= to; ++line)
        all = all && text(line).startsWith("//");
    for (int line = from; line <= to; ++line) {
        const long at = SendScintilla(SCI_POSITIONFROMLINE, line);
        if (all)
            SendScintilla(SCI_DELETERANGE, static_cast<unsigned long>(at), 2L);
        else
            SendScintilla(SCI_INSERTTEXT, static_cast<unsigned long>(at), "//");
    }
}

// --- the buffer's edits ---

void CodeEditor::ShowText() {
    echo_ = true;
    const std::string& text = source_.Buffer().Text();
    SendScintilla(SCI_CLEARALL);
    SendScintilla(SCI_APPENDTEXT, text.size(), text.data());
    echo_ = false;
    ShowPlaces();
}

void CodeEditor::ShowChange() {
    if (echo_) return;
    echo_ = true;
    for (const UnitEdits& edits : source_.Buffer().LastStep())
        for (auto edit = edits.rbegin(); edit != edits.rend(); ++edit) {
            SendScintilla(SCI_SETTARGETRANGE, edit->begin, long(edit->end));
            SendScintilla(SCI_REPLACETARGET, edit->text.size(), edit->text.data());
        }
    echo_ = false;
    if (source_.Buffer().Text().size() != std::size_t(SendScintilla(SCI_GETLENGTH))) return ShowText();
    ShowPlaces();
    if (OnChanged) OnChanged();
}

// --- cursor and selection ---

long CodeEditor::ToPosition(EditPos position) const {
    return long(source_.Buffer().PosToByte(position));
}

void CodeEditor::ShowPlaces() {
    if (echo_) return;
    echo_ = true;
    const PlainEditView& view = source_.View();
    const long cursor = ToPosition(view.CursorPos());
    const long start = ToPosition(view.BlockStart()), after = ToPosition(view.BlockAfter());
    if (start == after)
        SendScintilla(SCI_SETSEL, static_cast<unsigned long>(cursor), cursor);
    else // the caret stands at the block's end unless it is its start
        SendScintilla(SCI_SETSEL, static_cast<unsigned long>(cursor == start ? after : start),
                      cursor == start ? start : after);
    SendScintilla(SCI_SCROLLCARET);
    echo_ = false;
}

void CodeEditor::TellPlaces() {
    if (echo_) return;
    const auto place = [&](unsigned message) {
        return source_.Buffer().ByteToPos(std::size_t(SendScintilla(message)));
    };
    PlainEditView& view = source_.View();
    const EditPos cursor = place(SCI_GETCURRENTPOS);
    const EditPos start = place(SCI_GETSELECTIONSTART), after = place(SCI_GETSELECTIONEND);
    view.SetWindow(int(SendScintilla(SCI_DOCLINEFROMVISIBLE, SendScintilla(SCI_GETFIRSTVISIBLELINE))) + 1,
                   int(SendScintilla(SCI_LINESONSCREEN)));
    if (view.CursorPos() == cursor && view.BlockStart() == start && view.BlockAfter() == after) return;
    view.SetPlaces(cursor, start, after);
    if (OnChanged) OnChanged();
}

void CodeEditor::GoToLine(int line) {
    SendScintilla(SCI_ENSUREVISIBLEENFORCEPOLICY, static_cast<unsigned long>(line - 1));
    source_.View().SetPlaces({line, 1}, {line, 1}, {line, 1});
    ShowPlaces();
    source_.View().Center(line);
    if (OnChanged) OnChanged();
}

QString CodeEditor::WordOrSelection() const {
    if (hasSelectedText()) return selectedText();
    int line, column;
    getCursorPosition(&line, &column);
    return wordAtLineIndex(line, column);
}

void CodeEditor::contextMenuEvent(QContextMenuEvent* event) {
    TellPlaces(); // the control tells them itself only when it paints
    if (OnPopup) OnPopup(event->globalPos());
}

} // namespace glotta
