// What the engine sees of the formulas: the operations of each, and what a projection made ready for its parameters is.
// The same for every processor level.
#pragma once

#include "formulas/map_edges.h"
#include "formulas/method.h"
#include "formulas/parameters.h"

#include <zrproj/projection.h>

#include <cstddef>

namespace ZrProj::formulas {

/// What became of an array of points.
struct Outcome {
    bool unplottable = false; // at least one point was marked
    bool failed = false;      // at least one point raised an arithmetic exception
};

/// A projection made ready: the formula's constants and the functions that run it over arrays, in place, between
/// degrees and map coordinates; null where the parameters define no map.
struct Converter {
    using Run = Outcome (*)(Converter const& converter, PROJPOINT* points, int count) noexcept;

    Run forward = nullptr;
    Run inverse = nullptr;
    double xOrg = 0, yOrg = 0, scale = 1;
    double fullTurn = 360; // what a longitude of 360 degrees comes back as: where that is an edge, just inside
    alignas(std::max_align_t) std::byte constants[3072]; // read by the two functions only
};

/// The operations of a formula. All but `prepare` take points in degrees.
struct Formula {
    void (*prepare)(Converter& converter, Parameters const& given) noexcept;
    bool (*inProjection)(ParametersInDegrees const& given, PROJPOINT const& point) noexcept;
    bool (*offsetSplitObject)(ParametersInDegrees const& given, PROJPOINT const* points, unsigned count, double* out1,
                              double* out2) noexcept;
    MapEdges (*edges)(ParametersInDegrees const& given) noexcept; // where there is a map
};

/// The formulas of a processor level, in the order of Method.
struct FormulaSet {
    Formula (*byMethod[methodCount])() noexcept;
};

} // namespace ZrProj::formulas
