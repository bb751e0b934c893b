// The register's ways from one of its datums to another, ranked.
#pragma once

#include "systems/route.h"

#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace ZrProj::systems {

/// An operation as part of a way: a concatenated one's steps, and what keeps it from being used.
struct Link {
    DirectedOperation whole;
    std::vector<DirectedOperation> steps;
    std::vector<std::string> missing; // grid files
    bool computed = true;             // its methods are known here
};

/// Links one after the other from datum to datum.
struct Way {
    std::vector<Link const*> links;
    double accuracy = 0; // metres, NaN where unknown
    std::optional<Area> area;
    double extent = 0; // of what it has of the two systems' areas

    std::string name() const;
    std::size_t stepCount() const;
    bool isComputed() const;
    bool needsGrid() const;
    std::vector<std::string> missing() const;
    bool isUsable() const { return isComputed() && missing().empty(); }
};

/// Direct ways; where none of them can be used, those over one datum too; else over one more, which only is the same by
/// another name. The first is the best one.
struct Ways {
    std::vector<Way> ways;
    bool foundAny = false;               // even such as serve no area of the two systems
    std::deque<std::vector<Link>> links; // whose addresses ways have
};
Ways waysBetween(Definition const& from, Definition const& to, GridIsThere const& gridIsThere);

} // namespace ZrProj::systems
