// Runs what a person asks for, to its end, its message or its silence.
#pragma once
#include "platform/Ui.h"

#include <functional>

namespace glotta {

// EGlottaSilent ends the command without a word, every other failure with its message. True when it came to
// its end.
bool RunCommand(Ui& ui, const std::function<void()>& command);

} // namespace glotta
