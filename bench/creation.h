// Making what converts: from a code of the register to the first point, beside PROJ.
#pragma once

#include "table.h"

namespace ZrProj::bench {

void registerCreationRows();
void printCreationTable(Collector const& measured);

} // namespace ZrProj::bench
