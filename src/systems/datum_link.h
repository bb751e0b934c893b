// Whether coordinates on one datum are coordinates on another as they stand.
#pragma once

#include "systems/definition.h"

#include <optional>
#include <string>

namespace ZrProj::systems {

/// What lies between two datums on which coordinates are the same, to an accuracy.
struct DatumLink {
    double accuracy = 0; // metres
    std::string told;    // "" where they are one
};

/// Nothing where the datums differ. Two are one where the register says so, whatever meridian they count from, unless
/// one has a shift to WGS 84 of its own that is neither zero nor the register's; without codes, where name, figure and
/// way to WGS 84 agree. Realizations of one ensemble are as near as it is accurate.
std::optional<DatumLink> linkBetween(Datum const& a, Datum const& b);

} // namespace ZrProj::systems
