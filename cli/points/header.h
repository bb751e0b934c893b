// Finding the coordinate columns by the names in a header line.
#pragma once

#include "cli/projection/units.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace ZrProj::Command {

/// What a conversion does with its points.
enum class Direction {
    Forward, // longitudes and latitudes to map coordinates
    Inverse, // map coordinates to longitudes and latitudes
    Datum,   // longitudes and latitudes to those of another datum
};

/// Whether the points come as longitudes and latitudes.
constexpr bool readsAngles(Direction direction) {
    return direction != Direction::Inverse;
}

/// Columns by their place, from 0. An absent zone column is -1.
struct Columns {
    int x = 0; // longitude or easting
    int y = 1; // latitude or northing
    int zone = -1;
    LengthUnit const* unit = nullptr; // that the names tell
};

/// The columns to convert: of angles longitude and latitude, or x and y, or easting and northing; for Inverse easting
/// and northing, or x and y; the leftmost ones where several fit. Names may carry a unit: "easting_us_ft",
/// "Longitude (deg)". With `unit` only columns of that unit, or without one, are taken. Nothing when there is no pair,
/// and when its two units differ.
std::optional<Columns> findColumns(std::span<std::string const> names, Direction direction, LengthUnit const* unit);

/// The unit at the end of a column's name, null for none.
LengthUnit const* unitOfColumn(std::string_view name);

} // namespace ZrProj::Command
