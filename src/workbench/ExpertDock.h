// The expert's main window as a part of the host's.
#pragma once
#include <QtWidgets/QDockWidget>

class QMainWindow;

namespace glotta {

class ExpertDock : public QDockWidget {
public:
    // Takes the window in, at the place where the host had it last.
    ExpertDock(QMainWindow& host, QWidget& window);
    // The window stands by itself again, where it stood before.
    void Release();
    // Goes, and leaves its place in the host's layout for the next one.
    void Leave();

protected:
    void closeEvent(QCloseEvent* event) override; // closes the window in it

private:
    QMainWindow& host_;
    QRect before_;
};

} // namespace glotta
