// Runs a map over an array of points, a register full of them at a time. The last register of a block is filled up, so
// that a point is computed by the same instructions wherever in an array it stands.
#pragma once

#include "formulas/number.h"

#include <zrproj/georef.h>

#include <cstddef>

namespace ZrProj::formulas::ZRPROJ_LEVEL {

inline constexpr std::size_t georefBlockPoints = 256;

/// Separates the coordinates of up to georefBlockPoints points.
inline void unpack(GEOREFPOINT const* points, std::size_t count, double* x, double* y) {
    std::size_t i = 0;
    for (; i < count; ++i) {
        x[i] = points[i].x;
        y[i] = points[i].y;
    }
    for (; i % lanes != 0; ++i)
        x[i] = y[i] = 0;
}

/// Maps x and y in place; what is marked, or comes out infinite or NaN, is marked.
template <class Map> [[gnu::noinline]] void mapBlock(Map const& map, std::size_t count, double* x, double* y) {
    Register const marker = DBL_MAX;
    for (std::size_t i = 0; i < count; i += lanes) {
        Xy<Register> const in{load(x + i), load(y + i)};
        Xy<Register> const out = map(in);
        auto const stands = (in.x != marker) & (in.y != marker) & (abs(out.x) <= DBL_MAX) & (abs(out.y) <= DBL_MAX);
        store(x + i, select(stands, out.x, marker));
        store(y + i, select(stands, out.y, marker));
    }
}

/// `map` takes and gives an Xy<Register>.
template <class Map> void mapPoints(Map const& map, GEOREFPOINT* points, std::size_t count) {
    double x[georefBlockPoints], y[georefBlockPoints];
    while (count > 0) {
        std::size_t const block = count < georefBlockPoints ? count : georefBlockPoints;
        unpack(points, block, x, y);
        mapBlock(map, block, x, y);
        for (std::size_t i = 0; i < block; ++i)
            points[i] = {x[i], y[i]};
        points += block;
        count -= block;
    }
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
