// A request for a datum conversion made ready, and points carried through it.
#pragma once

#include "datum/step.h"

#include <span>

namespace ZrProj::datum {

struct Conversion {
    bool isDefined = false;     // both ends are known and can be converted in their direction
    char const* grid = nullptr; // of a source that is shifted by a NADCON grid
    Step source, destination;
    MethodSet const* methods = nullptr;
};

/// Works out what conversions need, at the processor level in use. To be run in the default floating-point environment.
Conversion prepareConversion(DATUMXFORM const& request) noexcept;

/// Converts the points by a conversion that is defined. `marked` is set when one of them is marked. False when a grid
/// cannot be read.
bool convert(Conversion const& conversion, std::span<DATUMPOINT> points, bool& marked);

} // namespace ZrProj::datum
