#include "systems/area.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace ZrProj::systems {
namespace {

bool goesRound(Area const& area) {
    return area.east - area.west >= 360;
}

double eastOf(Area const& area) {
    return area.west <= area.east ? area.east : area.east + 360;
}

bool haveOneOutline(Area const& a, Area const& b) {
    return a.west == b.west && a.south == b.south && a.east == b.east && a.north == b.north;
}

std::string nameOfCommon(Area const& common, Area const& a, Area const& b) {
    if (haveOneOutline(common, a))
        return a.name;
    return haveOneOutline(common, b) ? b.name : a.name + ", as far as in " + b.name;
}

/// Within half a turn, on the register's hundredths again, so that equal areas compare equal.
double wrapped(double longitude) {
    double const within = longitude > 180 ? longitude - 360 : longitude < -180 ? longitude + 360 : longitude;
    return std::round(within * 100) / 100;
}

} // namespace

CommonArea commonArea(std::optional<Area> const& a, std::optional<Area> const& b) {
    if (!a || !b)
        return {a ? a : b};
    double west = 0, east = 0;
    if (goesRound(*a) || goesRound(*b)) {
        Area const& narrower = goesRound(*a) ? *b : *a;
        west = narrower.west, east = eastOf(narrower);
    }
    for (double turn : {0.0, -360.0, 360.0}) {
        double const w = std::max(a->west, b->west + turn), e = std::min(eastOf(*a), eastOf(*b) + turn);
        if (e - w > east - west)
            west = w, east = e;
    }
    if (west >= 180)
        west -= 360, east -= 360;
    Area common{wrapped(west), std::max(a->south, b->south), wrapped(east), std::min(a->north, b->north), ""};
    if (!(west < east && common.south < common.north))
        return {{}, true};
    common.name = nameOfCommon(common, *a, *b);
    return {common};
}

double extentOf(std::optional<Area> const& area) {
    constexpr double degree = std::numbers::pi / 180;
    Area const whole = area.value_or(Area{});
    return (eastOf(whole) - whole.west) * (std::sin(whole.north * degree) - std::sin(whole.south * degree));
}

} // namespace ZrProj::systems
