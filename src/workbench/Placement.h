// Where a window stands, as forms keep it.
#pragma once
#include "settings/FormStorage.h"

class QWidget;

namespace glotta {

FormPlacement PlacementOf(const QWidget& window);
// On a screen that is there, and no larger than it.
void Place(QWidget& window, const FormPlacement& placement);

} // namespace glotta
