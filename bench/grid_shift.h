// A datum shift by an NTv2 grid, beside PROJ with the same file.
#pragma once

#include "table.h"

namespace ZrProj::bench {

/// The grid stands beside this program until it ends.
Group gridShiftGroup();

} // namespace ZrProj::bench
