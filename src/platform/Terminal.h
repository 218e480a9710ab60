// What stands at the other end of the standard streams.
#pragma once

namespace glotta {

bool StandardErrorIsTerminal();

} // namespace glotta
