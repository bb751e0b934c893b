// Files of source points in, with their target coordinates out.
#pragma once

#include "cli/georef/analysis.h"
#include "cli/points/layout.h"
#include "cli/text/output.h"

#include <zrproj/zrproj.h>

#include <string>
#include <vector>

namespace ZrProj::Command {

struct GeorefJob {
    ColumnRequest columns; // plain numbers: those of Operation::Inverse
    int decimals = 3;
    bool strict = false;            // whether a point that cannot be mapped is a failure
    std::vector<std::string> files; // "-" is standard input
};

/// Runs files of points through a fitted map, in blocks of lines, in memory that does not grow with the input. Columns
/// and headers are treated as elsewhere; results go into new columns, or replace coordinates without a header. Returns
/// the exit status. Throws UsageError for a header that cannot be used.
int applyGeoref(GeorefFit const& map, GeorefJob const& job, Output& output);

} // namespace ZrProj::Command
