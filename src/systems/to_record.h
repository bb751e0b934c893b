// What the records of projections and datums can say of a definition.
#pragma once

#include "systems/conversion.h"
#include "systems/definition.h"

#include <zrproj/datum.h>
#include <zrproj/projection.h>

#include <string>
#include <variant>

namespace ZrProj::systems {

struct SystemRecord {
    PROJDATA projection = {};
    DatumType datum = DatumTypeNone;
    DATUM2WGS84 parameters = {}; // of the datum, where it has any
    std::string noDatum;         // why there is none
};

/// The record of a system: the zone where its conversion is one of UTM or State Plane, else the projection with its
/// parameters; web Mercator as a Mercator of the sphere. Unsupported where no record computes the same. A datum is the
/// catalogue's by its code, or by its name where it has no code, or the user's own by its way to WGS 84; the projection
/// is there without one, too.
std::variant<SystemRecord, Unsupported> recordOf(Definition const& system);

} // namespace ZrProj::systems
