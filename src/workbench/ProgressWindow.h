// The little window that says what goes on.
#pragma once
#include <QtWidgets/QFrame>

class QLabel;

namespace glotta {

class ProgressWindow : public QFrame {
public:
    ProgressWindow();
    void SetText(const QString& text, QWidget* over); // empty hides it

    // Out of the way of a question for its life.
    class Hidden {
    public:
        explicit Hidden(ProgressWindow* window);
        ~Hidden();
        Hidden(const Hidden&) = delete;
        Hidden& operator=(const Hidden&) = delete;

    private:
        ProgressWindow* window_;
    };

private:
    QLabel* label_;
};

} // namespace glotta
