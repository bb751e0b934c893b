// What the engine sees of the formulas: a row of operations a projection type, and what a projection made ready for one
// record is. The same for every processor level.
#pragma once

#include "formulas/map_edges.h"

#include <zrproj/projection.h>

#include <cstddef>

namespace ZrProj::formulas {

/// A degree in radians, a radian in degrees. A record's angles and the points go by the same numbers, so that a point
/// on the central meridian is on it in radians too.
inline constexpr double degree = 0.017453292519943295, radian = 57.29577951308232;

/// What became of an array of points.
struct Outcome {
    bool unplottable = false; // at least one point was marked
    bool failed = false;      // at least one point raised an arithmetic exception
};

/// A projection made ready for one record: the formula's constants and the functions that run it over arrays, in place,
/// between degrees and map coordinates; null where the record defines no map.
struct Converter {
    using Run = Outcome (*)(Converter const& converter, PROJPOINT* points, int count) noexcept;

    Run forward = nullptr;
    Run inverse = nullptr;
    double xOrg = 0, yOrg = 0, scale = 1;
    double fullTurn = 360; // what a longitude of 360 degrees comes back as: where that is an edge, just inside
    alignas(std::max_align_t) std::byte constants[3072]; // read by the two functions only
};

/// The operations of a projection type. `work` has its angles in radians and the ellipsoid in MajorRadius and
/// Flattening; the others take a record and points in degrees.
struct Formula {
    void (*prepare)(Converter& converter, PROJDATA const& work) noexcept;
    bool (*inProjection)(PROJDATA const& record, PROJPOINT const& point) noexcept;
    bool (*offsetSplitObject)(PROJDATA const& record, PROJPOINT const* points, unsigned count, double* out1,
                              double* out2) noexcept;
    MapEdges (*edges)(PROJDATA const& record) noexcept; // where there is a map
};

/// One row for each ProjType; null where a type has no formula.
struct FormulaSet {
    Formula const* byType[29];
};

} // namespace ZrProj::formulas
