// Which systems of the register put given coordinates where they are known to be.
#pragma once

#include <zrproj/zrproj.h>

#include <cstddef>
#include <string>
#include <vector>

namespace ZrProj::Command {

/// Coordinates in an unknown system, and where each of them is: longitude and latitude on WGS 84.
struct KnownPoints {
    std::vector<PROJPOINT> coordinates, places; // as many of the one as of the other, at least one
};

/// Coordinates of which only is known that they are about one place: the middle one stands for all, each of its two
/// numbers the median of theirs. At least one.
KnownPoints pointsAbout(std::vector<PROJPOINT> const& coordinates, PROJPOINT place);

/// A system that the coordinates may be in.
struct Identified {
    int code = 0;
    std::string name;
    double off = 0;         // metres: root mean square of how far from their places it puts the points
    bool isSwapped = false; // x and y change places
    bool isInArea = false;  // whether all places are in its area of use
    bool isDeprecated = false;
    double accuracy = 0; // metres, of the way from its datum to WGS 84: NaN where not stated, infinite where there is
                         // no way, so that the points are taken as they are
    std::size_t others = 0; // of its family: other zones, and other realizations of its datum, that put them no nearer

    /// For what is listed first: those in their area, deprecated ones last, and of each the nearest; where that is
    /// one to a centimetre, those whose datum is closest tied to WGS 84.
    bool goesBefore(Identified const& other) const;
};

/// The systems that put the points within so many metres of their places, those listed first in front, and of each
/// family the first one.
std::vector<Identified> identify(KnownPoints const& points, double within);

/// What zones of one system and realizations of one datum have in common.
std::string familyOf(std::string_view name);

} // namespace ZrProj::Command
