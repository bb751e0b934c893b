// Angles as text, in the notation of the State Plane definitions: "-36d52'11.6315".
#ifndef ZRPROJ_ANGLE_H
#define ZRPROJ_ANGLE_H

#include "api.h"

#include <cstdint>

namespace ZrProj {

/// Which parts of an angle DegreesToLatLon writes.
enum AngleTextFormat : std::int32_t {
    AngleTextFormatDegrees = 0,               ///< "-36.8699"
    AngleTextFormatDegreesMinutes = 1,        ///< "-36d52.194"
    AngleTextFormatDegreesMinutesSeconds = 2, ///< "-36d52'11.6315"
};

/// Reads an angle: an optional minus, whole degrees, and then, each part only after the one before it, the degree
/// letter, minutes, an apostrophe and seconds.
///
/// The minus covers the whole angle: "-0d30'" is minus half a degree. The last part that is there may carry a decimal
/// fraction, always with a point, whatever the locale. `degreeLetter` is the degree mark, 'd' for the texts above; a
/// letter matches in either case.
///
/// Returns false, with `*degrees` untouched, for a null pointer and for any other text: a blank, a plus sign, an
/// exponent, another letter, minutes or seconds of 60 and more, anything after the angle, and digits too many for a
/// double.
ZRPROJ_API bool LatLonToDegrees(char const* text, double* degrees, char degreeLetter);

/// Writes an angle so that LatLonToDegrees reads it back with the same letter. Minutes and seconds are never written as
/// 60: "29d59'60.0" comes out as "30d0'0.0".
///
/// `degrees` is any finite angle, `decimals` the number of decimal places of the last part, 0 to 12, and `bufferSize`
/// the number of bytes in `buffer`, the closing null included.
///
/// Returns false, with `buffer` untouched, when the buffer is null or too small, the angle is not finite, the format or
/// decimals are out of range, or the letter could not be read back, being a digit, a point or null.
ZRPROJ_API bool DegreesToLatLon(double degrees, char* buffer, int bufferSize, AngleTextFormat format, int decimals,
                                char degreeLetter);

} // namespace ZrProj

#endif
