// Numbers and angles as users write them.
#pragma once

#include <string>
#include <string_view>

namespace ZrProj::Command {

/// What a field reads as: a value, or the reason why it has none, worded to follow the field ("is empty").
struct Reading {
    double value = 0;
    char const* error = nullptr;
};

/// Reads a finite decimal number, with an optional sign and exponent, and blanks around it. The decimal mark is a
/// point, whatever the locale.
Reading readNumber(std::string_view field);

/// Reads a flattening: a number, or 1/298.25.
Reading readFlattening(std::string_view text);

/// A number with as many digits as it takes to read it back.
std::string numberText(double value);

/// A flattening as both of its kinds: "0.0033528106647474805 (1/298.257223563)".
std::string flatteningText(double flattening);

enum class Axis { Longitude, Latitude, Azimuth };

/// Reads an angle in degrees: a decimal number, or degrees, minutes and seconds with their marks:
///
///     -79.9822   79.9822W   w 79.9822   79d58'56"W   -79°58.94'   79:58:56 W   79d 58m 56s W
///
/// Marks are d, ° or : after degrees; m, ' or : after minutes; s, " or two ' after seconds, and the typographic forms
/// of these; the last one may be missing. Only the last part may have a fraction. N and S belong to latitudes, E and W
/// to longitudes, in either case, before or after the angle, instead of a sign. After seconds, an s that may mean
/// seconds or south is refused. Longitudes and azimuths reach to 360 degrees either way, latitudes to 90.
Reading readAngle(std::string_view field, Axis axis);

} // namespace ZrProj::Command
