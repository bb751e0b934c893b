// Grids of datum shifts as "CTABLE V2.0", a format that carries NADCON's shifts to other programs.
#pragma once

#include <zrproj/c.h>

#include <string>
#include <vector>

namespace ZrProj::Command {

/// Whether there is a plain file of that name that begins as such a grid does.
bool isCtable(std::string const& path);

/// A grid's header and its shifts in arcseconds, row by row from the south-west, to the east and to the north.
struct CtableFile {
    zrproj_grid header{};
    std::vector<float> east, north;

    /// Throws UsageError when the file has no grid's header or not all of its values, and std::runtime_error when it
    /// cannot be read.
    explicit CtableFile(std::string const& path);
};

} // namespace ZrProj::Command
