// How a file of points is laid out, recognised from its first line.
#pragma once

#include "cli/model/units.h"
#include "cli/points/fields.h"
#include "cli/text/numbers.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ZrProj::Command {

/// What becomes of points.
enum class Operation {
    Forward,  // longitudes and latitudes to map coordinates
    Inverse,  // map coordinates to longitudes and latitudes
    Datum,    // longitudes and latitudes to those of another datum
    MapToMap, // map coordinates to those of another map
};

/// Whether the points come as longitudes and latitudes.
constexpr bool readsAngles(Operation operation) {
    return operation == Operation::Forward || operation == Operation::Datum;
}

/// Whether the results are longitudes and latitudes.
constexpr bool writesAngles(Operation operation) {
    return operation == Operation::Inverse || operation == Operation::Datum;
}

/// Columns by their index, from 0. An absent zone column is -1.
struct Columns {
    int x = 0; // longitude or easting
    int y = 1; // latitude or northing
    int zone = -1;
    LengthUnit const* unit = nullptr; // that the names tell
};

/// The columns to convert: of angles longitude and latitude, or x and y, or easting and northing; of map
/// coordinates easting and northing, or x and y; the leftmost ones where several fit. Names may carry a unit:
/// "easting_us_ft", "Longitude (deg)". With `unit` only columns of that unit, or without one, are taken. Nothing when
/// there is no pair, and when its two units differ.
std::optional<Columns> findColumns(std::span<std::string const> names, Operation operation, LengthUnit const* unit);

/// The unit at the end of a column's name, null for none.
LengthUnit const* unitOfColumn(std::string_view name);

/// Stands for both coordinates of a point that has none.
inline constexpr std::string_view noCoordinate = "*";

/// Reads a longitude or latitude, or an easting or northing, whichever the operation reads.
inline Reading readCoordinate(std::string_view field, bool isX, Operation operation) {
    if (!readsAngles(operation))
        return readNumber(field);
    return readAngle(field, isX ? Axis::Longitude : Axis::Latitude);
}

inline std::string_view coordinateName(bool isX, Operation operation) {
    if (!readsAngles(operation))
        return isX ? "easting" : "northing";
    return isX ? "longitude" : "latitude";
}

/// What the user says about the columns.
struct ColumnRequest {
    Operation operation = Operation::Forward;
    std::vector<std::string> columns; // of --columns: numbers from 1, or names; empty where not given
    LengthUnit const* unit = nullptr; // of the coordinates read, where --units says it; else null
    bool zone = false;                // whether a zone column is needed
};

/// The texts of --columns: two, or three with a zone. Throws UsageError for anything else.
std::vector<std::string> parseColumns(std::string_view option, bool zone);

struct Layout {
    char delimiter = ' ';
    bool header = false;        // the line recognised is a header
    std::size_t fieldCount = 0; // of the header
    Columns columns;
};

struct Recognition {
    bool clear = false; // false: the line tells nothing; `layout` is a guess
    Layout layout;
    std::string fault; // not empty: the line is a header that cannot be used, and why
};

/// Recognises a file's layout from a line that is neither empty nor a comment: by names in a header, or by coordinates
/// where --columns or the default (the first two fields) put them.
Recognition recognise(std::string_view line, ColumnRequest const& request);

} // namespace ZrProj::Command
