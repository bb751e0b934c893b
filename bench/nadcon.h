// NADCON: whole calls, beside the plain way of reading a grid, a point at a time.
#pragma once

#include "table.h"

namespace ZrProj::bench {

/// Adds the rows. Their grid, of the size of the 48 states', stands beside this program until it ends.
void registerNadcon();

void printNadcon(Collector const& measured);

} // namespace ZrProj::bench
