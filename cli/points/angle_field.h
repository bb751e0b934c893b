// Angles as users write them.
#pragma once

#include "cli/text/number_field.h"

namespace ZrProj::Command {

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
