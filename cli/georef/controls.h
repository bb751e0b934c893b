// A list of control points, read from a file.
#pragma once

#include "cli/georef/methods.h"

#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

namespace ZrProj::Command {

struct ControlPoint {
    GEOREFPOINT source{}, target{};
    std::string name; // may be empty
    std::uint64_t line = 0;

    /// How to call it in a message: its name, or its line.
    std::string title() const;
};

/// Reads the control points of a file, "-" for standard input: source x and y, target x and y, and a name if there is
/// one; fields between commas, tabs, semicolons or blanks. In a header, names such as source_x, pixel_x, map_y or
/// easting tell the columns where they stand otherwise. `columns` (--columns) names or numbers four or five of them.
///
/// Throws std::runtime_error when the file cannot be read, ControlsError when lines of it cannot, UsageError for
/// columns that are none.
std::vector<ControlPoint> readControls(std::string const& file, std::string const& columns);

/// What is wrong with a list of controls, told for the list as a whole; ends the command with status 1.
struct ControlsError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Why no map of the method goes through the controls: too few, two in one place, all on one line, or otherwise.
std::string whyNoFit(GeorefMethod const& method, std::vector<ControlPoint> const& controls);

} // namespace ZrProj::Command
