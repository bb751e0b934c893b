// The points to mark on a map.
#pragma once

#include "cli/map/drawing.h"

namespace ZrProj::Command {

/// Reads longitudes and latitudes from a file, laid out as those to be converted, "-" for standard input; `columns` is
/// what --columns says, or "". The names are those of a column called name, label, title, place or city; without a
/// header, of the third.
///
/// Throws UsageError for columns that are none, std::runtime_error, naming the line, when the file cannot be read.
std::vector<LabelledPlace> readMapPoints(std::string const& file, std::string const& columns);

} // namespace ZrProj::Command
