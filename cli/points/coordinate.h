// A coordinate as a field has it.
#pragma once

#include "cli/points/angle_field.h"
#include "cli/points/header.h"

#include <string_view>

namespace ZrProj::Command {

/// Stands for both coordinates of a point that has none.
inline constexpr std::string_view noCoordinate = "*";

/// Reads an easting or northing for Inverse, else a longitude or latitude.
inline Reading readCoordinate(std::string_view field, bool isX, Direction direction) {
    if (direction == Direction::Inverse)
        return readNumber(field);
    return readAngle(field, isX ? Axis::Longitude : Axis::Latitude);
}

inline std::string_view coordinateName(bool isX, Direction direction) {
    if (direction == Direction::Inverse)
        return isX ? "easting" : "northing";
    return isX ? "longitude" : "latitude";
}

} // namespace ZrProj::Command
