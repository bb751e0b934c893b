// What is in a pair of grids, which convention it follows, and pairs of other makers made into this library's.
#pragma once

#include "cli/text/output.h"

#include <zrproj/c.h>

#include <string>
#include <string_view>
#include <vector>

namespace ZrProj::Command {

/// A file of a pair, and what its header says.
struct GridFile {
    std::string path;
    zrproj_grid header;

    /// Throws UsageError when there is none, or its header cannot be relied on.
    explicit GridFile(std::string name);
    /// The shifts of a row, counted from 1. Throws std::runtime_error when they are not there.
    std::vector<float> row(int number) const;
};

/// What the files of a pair hold.
struct Arrangement {
    bool latitudesInLas; // and longitudes in .LOS
    bool westPositive;
    std::string_view words;

    bool operator==(Arrangement const&) const = default;
};

inline constexpr Arrangement own{false, false,
                                 "one of this library's, with longitude shifts in .LAS and east positive"};
inline constexpr Arrangement usual{true, true,
                                   "one of the usual convention, with latitude shifts in .LAS and west positive"};

/// The arrangement by which a pair with one header agrees with three shifts of NAD 1927 at least twice as well as by
/// `supposed`; `supposed` where there is none, and for grids elsewhere than in North America and the Caribbean.
Arrangement arrangementOf(GridFile const& las, GridFile const& los, Arrangement const& supposed);

/// Writes a pair's header, extent and value ranges. Throws std::runtime_error, after that, when something is wrong with
/// the pair, and UsageError when it cannot be opened.
/// path: of the files without ".LAS" and ".LOS".
void checkGrids(std::string const& path, Output& output);

struct GridImport {
    std::string source;      // path of the pair, without ".las" and ".los" (in either case), or of a CTABLE
    std::string destination; // path of the new pair, without ".LAS" and ".LOS"
    bool replace = false;    // files that are there
};

/// Turns a pair of the usual convention (latitude shifts in .las, longitude shifts in .los, west positive) into one of
/// this library's (longitude shifts in .LAS, east positive, latitude shifts in .LOS). Refused are files that are to be
/// written themselves, and a pair that looks like another than the usual one. The leading word of a row, which
/// the library takes as the value west of it, becomes its first value. Each file appears when it is whole. Throws
/// UsageError or std::runtime_error.
void importGrids(GridImport const& job);

/// Makes such a pair of a file in the format "CTABLE V2.0". Throws UsageError or std::runtime_error.
void importCtable(GridImport const& job);

/// Where the library looks for grids: the directory of this program, with its closing separator.
std::string gridDirectory();

} // namespace ZrProj::Command
