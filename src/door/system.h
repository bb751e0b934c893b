// What a coordinate system of the door is.
#pragma once

#include "door/answer.h"
#include "door/projection.h"
#include "systems/definition.h"

#include <optional>

/// Made from parameters or from a definition, and either way both a definition, for names, texts and datums, and what
/// converts.
struct zrproj_system {
    ZrProj::systems::Definition definition;
    std::string unsaid;                          // why the definition does not say the projection, "" where it does
    std::optional<zrproj_parameters> parameters; // complete; of a system made from them
    std::shared_ptr<ZrProj::Door::Projection const> projection;
};

namespace ZrProj::Door {

/// Makes a system of what a file says: the register's where it is the same, by its numbers where they contradict a
/// name, which is told.
Answer makeSystem(zrproj_system& system, systems::Definition const& said);

/// Makes a system of a caller's parameters.
Answer makeSystem(zrproj_system& system, zrproj_parameters const& given);

/// What a message or a line calls the system, "" for one without a name of its own.
std::string calledBy(zrproj_system const& system);

/// The name of the projection's method.
std::string methodOf(zrproj_system const& system);

} // namespace ZrProj::Door
