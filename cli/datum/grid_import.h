// Grids of other makers, made into this library's.
#pragma once

#include <string>

namespace ZrProj::Command {

struct GridImport {
    std::string source;      // path of the pair, without ".las" and ".los" (in either case)
    std::string destination; // path of the new pair, without ".LAS" and ".LOS"
    bool replace = false;    // files that are there
};

/// Turns a pair of the usual convention (latitude shifts in .las, longitude shifts in .los, west positive) into one of
/// this library's (longitude shifts in .LAS, east positive, latitude shifts in .LOS). Refused are files that are to be
/// written themselves, and a pair that looks like another than the usual one. The leading word of a row, which
/// the library takes as the value west of it, becomes its first value. Each file appears when it is whole. Throws
/// UsageError or std::runtime_error.
void importGrids(GridImport const& job);

} // namespace ZrProj::Command
