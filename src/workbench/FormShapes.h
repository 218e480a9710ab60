// How a form's controls lie on it: rectangles in the form's own pixels, with what each one is.
#pragma once
#include "vcl/Component.h"

#include <QtCore/QRect>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <vector>

namespace glotta {

struct DrawnControl {
    TComponent* component = nullptr; // nil for what no component stands for
    QRect rect;                      // on the whole form
    QRect clip;                      // what its parents let one see
    int depth = 0;
    bool visual = true;              // false: an icon for a component that shows nothing at run time
};

struct FormPicture {
    QString caption;
    bool hasFrame = false; // a window with its title; data modules and frames have none
    QStringList menus;     // captions of the menu bar
    QSize client;
    std::vector<DrawnControl> shapes; // in the order of drawing; the root is not among them
};

FormPicture PictureOf(ComponentTree& tree);

// A property's text for the picture: of a caption without its accelerator mark.
QString CaptionOf(const TComponent& component, bool keepAccelerator = false);

} // namespace glotta
