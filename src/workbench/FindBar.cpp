#include "workbench/FindBar.h"

#include "workbench/CodeEditor.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QToolButton>

namespace glotta {

FindBar::FindBar(QWidget* parent) : QWidget(parent) {
    find_ = new QLineEdit(this);
    find_->setObjectName("find");
    replace_ = new QLineEdit(this);
    replace_->setObjectName("replace");
    matchCase_ = new QCheckBox("Match &case", this);
    wholeWords_ = new QCheckBox("&Whole words", this);
    regExp_ = new QCheckBox("Regular e&xpression", this);
    told_ = new QLabel(this);
    auto* findLabel = new QLabel("Fi&nd:", this);
    findLabel->setBuddy(find_);
    auto* replaceLabel = new QLabel("Re&place with:", this);
    replaceLabel->setBuddy(replace_);
    auto* next = new QPushButton("Next", this);
    auto* previous = new QPushButton("Previous", this);
    auto* replaceOne = new QPushButton("Replace", this);
    auto* replaceAll = new QPushButton("Replace all", this);
    auto* close = new QToolButton(this);
    close->setText("×");
    close->setAutoRaise(true);
    close->setToolTip("Close (Esc)");
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(6, 4, 6, 4);
    grid->setVerticalSpacing(4);
    int column = 0;
    for (QWidget* each : std::initializer_list<QWidget*>{findLabel, find_, next, previous, matchCase_, wholeWords_, regExp_, close})
        grid->addWidget(each, 0, column++);
    column = 0;
    for (QWidget* each : std::initializer_list<QWidget*>{replaceLabel, replace_, replaceOne, replaceAll})
        grid->addWidget(each, 1, column++);
    grid->addWidget(told_, 1, 4, 1, 3);
    grid->setColumnStretch(1, 1);
    replaceControls_ = {replaceLabel, replace_, replaceOne, replaceAll};
    connect(find_, &QLineEdit::returnPressed, this, [this] { Next(true); });
    connect(replace_, &QLineEdit::returnPressed, this, [this] { Replace(); });
    connect(next, &QPushButton::clicked, this, [this] { Next(true); });
    connect(previous, &QPushButton::clicked, this, [this] { Next(false); });
    connect(replaceOne, &QPushButton::clicked, this, [this] { Replace(); });
    connect(replaceAll, &QPushButton::clicked, this, [this] { ReplaceAll(); });
    connect(close, &QToolButton::clicked, this, &QWidget::hide);
    hide();
}

void FindBar::Open(bool replace) {
    for (QWidget* control : replaceControls_)
        control->setVisible(replace);
    if (CodeEditor* editor = Editor())
        if (const QString word = editor->WordOrSelection(); !word.isEmpty() && !word.contains('\n')) find_->setText(word);
    Tell({});
    show();
    find_->setFocus();
    find_->selectAll();
}

bool FindBar::Find(CodeEditor& editor, bool forward, bool wrap) {
    int line, column, endLine, endColumn;
    editor.getSelection(&line, &column, &endLine, &endColumn);
    if (line < 0) {
        editor.getCursorPosition(&line, &column);
        endLine = line, endColumn = column;
    }
    return editor.findFirst(find_->text(), regExp_->isChecked(), matchCase_->isChecked(), wholeWords_->isChecked(), wrap,
                            forward, forward ? endLine : line, forward ? endColumn : column, true, false, true);
}

void FindBar::Next(bool forward) {
    CodeEditor* editor = Editor();
    if (!editor || find_->text().isEmpty()) return Open(false);
    Tell(Find(*editor, forward, true) ? QString() : "Not found");
}

void FindBar::Replace() {
    CodeEditor* editor = Editor();
    if (!editor || find_->text().isEmpty()) return;
    const CodeEditor::Step step(*editor);
    const auto compare = matchCase_->isChecked() ? Qt::CaseSensitive : Qt::CaseInsensitive;
    // What is selected by hand is replaced only when it is what is looked for.
    if (regExp_->isChecked() || editor->selectedText().compare(find_->text(), compare) == 0)
        if (editor->hasSelectedText()) editor->replace(replace_->text());
    Tell(Find(*editor, true, true) ? QString() : "Not found");
}

void FindBar::ReplaceAll() {
    CodeEditor* editor = Editor();
    if (!editor || find_->text().isEmpty()) return;
    const CodeEditor::Step step(*editor);
    int count = 0;
    bool found = editor->findFirst(find_->text(), regExp_->isChecked(), matchCase_->isChecked(), wholeWords_->isChecked(),
                                   false, true, 0, 0, false, false, true);
    for (; found && editor->hasSelectedText(); found = editor->findNext()) {
        editor->replace(replace_->text());
        ++count;
    }
    Tell(count == 1 ? QString("1 place replaced") : QString("%1 places replaced").arg(count));
}

void FindBar::Tell(const QString& text) {
    told_->setText(text);
}

void FindBar::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape) return QWidget::keyPressEvent(event);
    hide();
    if (CodeEditor* editor = Editor()) editor->setFocus();
}

} // namespace glotta
