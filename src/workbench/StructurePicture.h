// The picture of how a project's localization components are best connected, in the colors of the theme.
#pragma once
#include <QtWidgets/QWidget>

#include <functional>

namespace glotta {

class StructurePicture : public QWidget {
public:
    explicit StructurePicture(QWidget* parent = nullptr);
    std::function<void()> OnClick;

    QSize sizeHint() const override { return {560, 250}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
};

} // namespace glotta
