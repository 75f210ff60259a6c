// Which factories have live instances: every factory instance registers its
// factory identifier for as long as it lives.
#pragma once

#include "shell/PDEInterface.h"

namespace orvan {

void AddInstanceForFactory(const Uuid& factoryID);
void RemoveInstanceForFactory(const Uuid& factoryID);
int InstanceCountForFactory(const Uuid& factoryID);

} // namespace orvan
