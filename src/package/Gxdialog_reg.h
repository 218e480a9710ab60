// The registration of the package's dialog components.
#pragma once
#include "ide/DesignIntf.h"

namespace glotta::Gxdialog_reg {

void Register(IDesignServices& ide);

} // namespace glotta::Gxdialog_reg
