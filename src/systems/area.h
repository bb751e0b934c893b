// Areas of use: how large they are, and what they have in common.
#pragma once

#include "systems/definition.h"

#include <optional>

namespace ZrProj::systems {

/// What two areas share; of two pieces the wider one. Nothing stands for everywhere among the arguments.
/// `empty` is true where they share nothing.
struct CommonArea {
    std::optional<Area> area;
    bool empty = false;
};
CommonArea commonArea(std::optional<Area> const& a, std::optional<Area> const& b);

/// On a sphere of radius 1, square radians times 180 / pi: enough to compare areas by.
double extentOf(std::optional<Area> const& area);

} // namespace ZrProj::systems
