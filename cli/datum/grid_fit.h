// Which convention a pair of grids follows, told by the shifts that it should hold.
#pragma once

#include "cli/datum/grid_file.h"

#include <string_view>

namespace ZrProj::Command {

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
Arrangement arrangementOf(GridFile& las, GridFile& los, Arrangement const& supposed);

} // namespace ZrProj::Command
