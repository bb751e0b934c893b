// Units and ellipsoids by their codes in the keys and by their figures.
#pragma once

#include "files/geotiff/keys.h"
#include "proj/figure.h"
#include "systems/definition.h"

namespace ZrProj::GeoTIFF {

/// The unit that a key names; nothing where the key is missing. A unit of the user's own has its size, in metres or
/// radians, in another key.
Expected<std::optional<systems::Unit>> lengthUnit(KeyDirectory const& keys, Key unitKey, Key sizeKey);
Expected<std::optional<systems::Unit>> angleUnit(KeyDirectory const& keys);

/// The ellipsoid that the keys describe, by axes rather than by code; nothing where they tell none. A semi-major axis
/// alone has the flattening of the ellipsoid of the code, or else of `numbered`, which may be null.
Expected<std::optional<systems::Ellipsoid>> readEllipsoid(KeyDirectory const& keys, systems::Ellipsoid const* numbered);

/// Whether two ellipsoids give the same coordinates to a millimetre.
bool sameFigures(systems::Ellipsoid const& a, systems::Ellipsoid const& b);

/// The code of the unit that as many of make a metre, 32767 where no unit is of that size.
std::uint16_t codeOfLengthUnit(double perMetre);

/// A figure of records as definitions have it, without name and code.
systems::Ellipsoid definitionOf(Figure const& figure);

void writeEllipsoid(KeyDirectory& keys, Figure const& figure);

} // namespace ZrProj::GeoTIFF
