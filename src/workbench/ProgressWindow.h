// The little window that says what goes on, and by which a run that asks for it can be stopped.
#pragma once
#include <QtCore/QElapsedTimer>
#include <QtWidgets/QFrame>

class QLabel;
class QPushButton;

namespace glotta {

class ProgressWindow : public QFrame {
public:
    ProgressWindow();
    void SetText(const QString& text, QWidget* over); // empty hides it
    // Whether the person asked to stop, by the button, Escape or the window's own close. The button is there from the
    // first time on that a run asks: others cannot be stopped.
    bool Cancelled();

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

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void Draw();
    void PlaceOver();

    QLabel* label_;
    QPushButton* cancel_;
    QRect over_; // the window over which it stands
    QElapsedTimer polled_;
    bool cancelled_ = false, polling_ = false;
};

} // namespace glotta
