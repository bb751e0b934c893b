// Files of points from one system of coordinates to another.
#pragma once

#include "cli/points/layout.h"
#include "cli/points/transform.h"
#include "cli/text/output.h"

#include <optional>
#include <string>
#include <vector>

namespace ZrProj::Command {

struct ConversionJob {
    ProjectionChoice projection; // not for Direction::Datum
    std::optional<DatumShift> shift;
    ColumnRequest columns; // with the direction, and --units
    int decimals = 0;
    bool strict = false;
    std::vector<std::string> files; // "-" is standard input

    /// The unit of projected coordinates: what --units says, else the file's own, which may be null, else that of
    /// the file of --like, else metres.
    LengthUnit const& unit(LengthUnit const* ofFile) const;
};

/// Runs one command line's files of points through. Returns the exit status. Throws UsageError when the projection or
/// the datums cannot convert, and for a header that cannot be used.
int convertPoints(ConversionJob const& job, Output& output);

} // namespace ZrProj::Command
