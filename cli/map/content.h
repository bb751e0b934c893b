// What a map is to show; land and points to mark are read from files.
#pragma once

#include "cli/model/projection.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ZrProj::Command {

struct LabelledPlace {
    PROJPOINT place;
    std::string name; // may be empty
};

/// What to draw.
struct MapContent {
    std::vector<Places> const* land = nullptr; // none when null
    double graticule = 0;                      // degrees between two lines; none when 0
    double ellipses = 0;                       // degrees between two distortion ellipses; none when 0
    std::vector<LabelledPlace> points;
    std::string title;                           // none when empty
    std::optional<std::array<double, 4>> bounds; // west, south, east, north, instead of the usual frame
};

/// samples/land-110m.csv, which the build puts into the command.
extern std::string_view const landData;

/// The rings of the world's land, Natural Earth 1:110 million, that the command carries with it; what an odd number of
/// them is around is land.
std::vector<Places> worldLand();

/// The rings of a file: a longitude and a latitude on each line, an empty line between rings, comments after #; the
/// first line may be a header. "-" is standard input. Throws std::runtime_error, naming the line, when it cannot be
/// read.
std::vector<Places> readLand(std::string const& file);

/// Reads longitudes and latitudes from a file, laid out as those to be converted, "-" for standard input; `columns` is
/// what --columns says, or "". The names are those of a column called name, label, title, place or city; without a
/// header, of the third.
///
/// Throws UsageError for columns that are none, std::runtime_error, naming the line, when the file cannot be read.
std::vector<LabelledPlace> readMapPoints(std::string const& file, std::string const& columns);

} // namespace ZrProj::Command
