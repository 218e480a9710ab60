// Every message of the system, with its kind and its buttons.
#pragma once
#include "platform/Ui.h"

#include <string>

namespace glotta {

// What is wrong with a message box, empty when it is as it has to be. A text that is not known may only be
// an error with the button OK: the message of an exception.
std::string FaultOfMessage(const std::string& text, MsgType type, const MsgButtons& buttons);

} // namespace glotta
