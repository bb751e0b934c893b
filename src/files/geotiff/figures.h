// Units of length and angle, and ellipsoids, by their codes in the keys and by their figures.
#pragma once

#include "files/geotiff/keys.h"

#include <zrproj/ellipsoid.h>

namespace ZrProj::GeoTIFF {

/// A unit is numerator / denominator metres, or degrees; a factor and a divisor, so that 1200/3937 stays exact.
struct Unit {
    double numerator = 1, denominator = 1;

    double toBase(double value) const { return value * numerator / denominator; }
    double perBase() const { return denominator / numerator; }
};

/// The unit that a key names, the one of `otherwise` where the key is missing. A unit of the user's own has its size,
/// in metres or radians, in another key.
Expected<Unit> lengthUnit(KeyDirectory const& keys, Key unitKey, Key sizeKey, std::uint16_t otherwise);
Expected<Unit> angleUnit(KeyDirectory const& keys, Key unitKey, Key sizeKey);

/// The code of the unit that as many of make a metre, 32767 where no unit is of that size.
std::uint16_t codeOfLengthUnit(double perMetre);

struct Ellipsoid {
    EllipsoidType type = EllipsoidTypeNone; // 0 where the catalogue does not have the figures
    double radius = 0;
    double flattening = 0;
};

/// The catalogue's ellipsoid, or the user's own figures; none (type 50) where there are none.
Ellipsoid ellipsoidOf(EllipsoidType type, double radius, double flattening);

/// Whether two ellipsoids give the same coordinates, to a millimetre and better.
bool sameFigures(Ellipsoid const& a, Ellipsoid const& b);

/// The ellipsoid of a code; type 50 where the code is unknown.
Ellipsoid ellipsoidOfCode(std::uint16_t code);

/// The code of an ellipsoid with these figures, 32767 where none has them.
std::uint16_t codeOfEllipsoid(Ellipsoid const& ellipsoid);

/// The ellipsoid that the keys describe, by code or by axes.
Expected<Ellipsoid> readEllipsoid(KeyDirectory const& keys);
/// Refused where the keys contradict an ellipsoid that is known already.
Expected<Ellipsoid> agreedEllipsoid(KeyDirectory const& keys, Ellipsoid const& known);
void writeEllipsoid(KeyDirectory& keys, Ellipsoid const& ellipsoid);

} // namespace ZrProj::GeoTIFF
