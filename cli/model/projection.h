// A projection as a command line chooses it, and lines and areas cut to what its map shows.
#pragma once

#include "cli/model/system.h"
#include "cli/model/units.h"

#include <zrproj/c.h>
#include <zrproj/zrproj.h>

#include <memory>
#include <span>
#include <vector>

namespace ZrProj::Command {

/// The projection that a command line asks for.
struct ProjectionChoice {
    PROJDATA record{};                         // not looked at where there is a system
    SystemPointer system{};                    // that a definition says; null for none
    bool zonePerPoint = false;                 // --utm auto: UTM, the zone being each point's own
    LengthUnit const* unit = nullptr;          // of a file's coordinates; null for metres
    std::shared_ptr<zrproj_fit const> image{}; // whose coordinates are given for projected ones; null for none
};

/// The system that was chosen. Throws UsageError where there is no map.
SystemPointer mapOf(ProjectionChoice const& choice);

/// Longitudes and latitudes, one after another.
using Places = std::vector<PROJPOINT>;

/// What the map shows of a line, or the rings around what it shows of the area in a ring, whose last point joins the
/// first. Nothing of lines of less than two points and rings of less than three. Throws std::bad_alloc.
std::vector<Places> preclipLine(System const& map, std::span<PROJPOINT const> line);
std::vector<Places> preclipRing(System const& map, std::span<PROJPOINT const> ring);

} // namespace ZrProj::Command
