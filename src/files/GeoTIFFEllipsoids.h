// Ellipsoids by their code in the keys, and by their figures.
#pragma once

#include "files/GeoTIFFGeographic.h"

namespace ZrProj::GeoTIFF {

/// Whether two ellipsoids give the same coordinates, to a millimetre and better.
bool sameFigures(Ellipsoid const& a, Ellipsoid const& b);

/// The ellipsoid of a code; type 50 where the code is unknown.
Ellipsoid ellipsoidOfCode(std::uint16_t code);

/// The code of an ellipsoid with these figures, 32767 where none has them.
std::uint16_t codeOfEllipsoid(Ellipsoid const& ellipsoid);

/// The ellipsoid that the keys describe, by code or by axes.
Outcome<Ellipsoid> readEllipsoid(KeyDirectory const& keys);
/// Refused where the keys contradict an ellipsoid that is known already.
Outcome<Ellipsoid> agreedEllipsoid(KeyDirectory const& keys, Ellipsoid const& known);
void writeEllipsoid(KeyDirectory& keys, Ellipsoid const& ellipsoid);

} // namespace ZrProj::GeoTIFF
