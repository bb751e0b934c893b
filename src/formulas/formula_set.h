// The formulas of one processor level, one for each source.
#pragma once

#include "formulas/converter.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {

extern Formula const transverseMercator;

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
