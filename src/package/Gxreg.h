// The package's registration: palette components, the expert, and the editors of components and properties.
#pragma once
#include "expert/Glottaexp.h"

#include <memory>

namespace glotta::Gxreg {

// Everything in the ports outlives the package. Throws Error when the IDE takes no design-time packages.
std::weak_ptr<TGlottaExpert> Register(ExpertPorts ports);

} // namespace glotta::Gxreg
