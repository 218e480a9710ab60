// What a component is to those who list or draw it.
#pragma once

namespace glotta {

class TComponent;

enum class ComponentKind { Form, DataModule, WindowedControl, Control, NonVisual };

// A class that the catalogue does not know is told by what the form file saves of it.
ComponentKind KindOf(const TComponent& component);
bool IsControl(const TComponent& component);

} // namespace glotta
