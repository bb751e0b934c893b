// Which way leads from one datum to another: the operations that carry positions across, how exact they are, where they
// hold, and what would be better.
#pragma once

#include "systems/operations.h"

#include <functional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace ZrProj::systems {

/// An operation on the way, never a concatenated one: those are the steps that they consist of. Its `grids` are the
/// files to be read.
struct RouteStep {
    Operation operation;
    bool reversed = false; // `from` is where the operation leads to
    Datum from, to;
    Code partOf = 0; // the concatenated operation that the register has for this step and its neighbours
};

struct Route {
    std::vector<RouteStep> steps; // empty where the datums are one
    double accuracy = 0;          // metres, the steps' together; NaN where a step's is unknown
    std::optional<Area> area;     // where all steps are stated to hold; nothing: everywhere
    std::vector<std::string> told;
    std::vector<std::string>
        missingGrids; // files that would make it better, each with the accuracy: "BETA2007.gsb (0.9 m)"
};

/// Why there is no way: a sentence.
struct NoRoute {
    std::string reason;
};

using GridIsThere = std::function<bool(std::string_view fileName)>;

/// From datum to datum, longitudes counted from Greenwich on both: what the definitions themselves say, else what the
/// register ranks first. Ways that lose more than a metre, or nobody knows how much, are refused on `refuseRough`.
std::variant<Route, NoRoute> routeBetween(Definition const& from, Definition const& to, GridIsThere const& gridIsThere,
                                          bool refuseRough);

} // namespace ZrProj::systems
