// What a conversion of datums is made of, the same for every processor level: a block of points in the first-level
// cache, and the steps that run over it.
#pragma once

#include <zrproj/datum.h>

#include <cstddef>

namespace ZrProj::datum {

inline constexpr int blockPoints = 256;

/// Up to blockPoints points, in degrees. A marked point's coordinates are NaN, which every step hands on.
struct Block {
    alignas(64) double x[blockPoints], y[blockPoints];
    double turn[blockPoints]; // to be added to the longitude in the end: -360, 0 or 360
    int count;
};

/// A method made ready for one end of a conversion.
struct Step {
    using Run = void (*)(Step const& step, Block& block) noexcept;

    Run run = nullptr;                        // null: the points stay as they are
    alignas(double) std::byte constants[128]; // read by `run` only
};

/// The operations of one processor level.
struct MethodSet {
    /// Takes up to blockPoints points; those with an infinite, NaN or DBL_MAX coordinate as marked ones.
    void (*read)(Block& block, DATUMPOINT const* points, int count) noexcept;
    /// Brings longitudes into -180 to 180 and latitudes into -90 to 90, and notes the turn.
    void (*cut)(Block& block) noexcept;
    /// Undoes the turn and brings the coordinates into range again.
    void (*restore)(Block& block) noexcept;
    /// Gives the points back, DBL_MAX for what is marked or not finite. Whether any was.
    bool (*write)(Block const& block, DATUMPOINT* points) noexcept;

    /// What the record says, in the direction that it says. The record's figures are those of its ellipsoid.
    void (*molodensky)(Step& step, DATUM2WGS84 const& record) noexcept;
    void (*bursaWolf)(Step& step, DATUM2WGS84 const& record) noexcept;
    /// The regression equations of a datum that has them.
    void (*regression)(Step& step, DatumType type) noexcept;
};

/// The operations at the level in use.
MethodSet const& methodsInUse() noexcept;

} // namespace ZrProj::datum
