// The picture of a form: its controls at their places. A click selects.
#pragma once
#include "workbench/FormShapes.h"

#include <QtWidgets/QWidget>

namespace glotta {

class FormCanvas : public QWidget {
public:
    explicit FormCanvas(QWidget* parent) : QWidget(parent) {
        setFocusPolicy(Qt::StrongFocus);
        setMouseTracking(true);
    }

    void SetPicture(FormPicture picture);
    void Select(TComponent* component);
    std::function<void(TComponent* component)> OnSelect;   // nil is the form itself
    std::function<void(TComponent* component)> OnActivate; // double click

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    bool event(QEvent* event) override;

private:
    QPoint Origin() const; // of the client area
    const DrawnControl* At(QPoint point) const;
    FormPicture picture_;
    TComponent* selected_ = nullptr;
};

} // namespace glotta
