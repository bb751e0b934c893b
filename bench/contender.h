// Who is measured.
#pragma once

#include "cases.h"

#include <zrproj/datum.h>

#include <functional>
#include <string>
#include <vector>

namespace ZrProj::bench {

struct Contender {
    using Convert = std::function<void(PROJPOINT* points, int count)>; // in place

    std::string name;
    bool isOurs = false;
    double degree = 1; // how it writes a degree
    double metres = 1; // what a unit of its results is on the ground
    Convert forward, inverse;
};

/// zrproj at every processor level that this machine has.
std::vector<Contender> zrprojContenders(Case const& definition);
std::vector<Contender> projContenders(Case const& definition);
/// zrproj from a datum to WGS 84 and back, likewise, and PROJ by a definition that means the same.
std::vector<Contender> zrprojDatumContenders(DatumType datum);
Contender projDatumContender(std::string const& definition);
/// zrproj between two systems, likewise.
std::vector<Contender> zrprojSystemContenders(SystemCase const& systems);
/// Empty where GeographicLib does not have the projection.
std::vector<Contender> geographicLibContenders(Case const& definition);

} // namespace ZrProj::bench
