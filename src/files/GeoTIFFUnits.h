// Units of length and angle, as the keys name them.
#pragma once

#include "files/GeoTIFFTags.h"

namespace ZrProj::GeoTIFF {

/// A unit is numerator / denominator metres, or degrees; a factor and a divisor, so that 1200/3937 stays exact.
struct Unit {
    double numerator = 1, denominator = 1;

    double toBase(double value) const { return value * numerator / denominator; }
    double perBase() const { return denominator / numerator; }
};

/// The unit that a key names, the one of `otherwise` where the key is missing. A unit of the user's own has its size,
/// in metres or radians, in another key.
Outcome<Unit> lengthUnit(KeyDirectory const& keys, Key unitKey, Key sizeKey, std::uint16_t otherwise);
Outcome<Unit> angleUnit(KeyDirectory const& keys, Key unitKey, Key sizeKey);

/// The code of the unit that as many of make a metre, 32767 where no unit is of that size.
std::uint16_t codeOfLengthUnit(double perMetre);

} // namespace ZrProj::GeoTIFF
