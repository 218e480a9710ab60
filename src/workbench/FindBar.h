// Find and replace in the shown source.
#pragma once
#include <QtWidgets/QWidget>

class QCheckBox;
class QLabel;
class QLineEdit;

namespace glotta {

class CodeEditor;

class FindBar : public QWidget {
public:
    explicit FindBar(QWidget* parent);
    std::function<CodeEditor*()> Editor; // the one to search in

    void Open(bool replace);
    void Next(bool forward);
    void Replace();
    void ReplaceAll();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool Find(CodeEditor& editor, bool forward, bool wrap);
    void Tell(const QString& text);
    QLineEdit *find_, *replace_;
    QCheckBox *matchCase_, *wholeWords_, *regExp_;
    QLabel* told_;
    std::vector<QWidget*> replaceControls_;
};

} // namespace glotta
