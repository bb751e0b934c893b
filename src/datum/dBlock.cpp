// The ends of a conversion: points into a block and out of it, longitudes into the range of the formulas and back.
#include "datum/driver.h"

namespace ZrProj::datum::ZRPROJ_LEVEL {
namespace {

/// Whether both coordinates are finite and below the marker.
template <class R> auto isGood(Pair<R> p) {
    return (p.x < DBL_MAX) & (p.x >= -DBL_MAX) & (p.y < DBL_MAX) & (p.y >= -DBL_MAX);
}

void copyIn(Block& block, DATUMPOINT const* points, int count) {
    block.count = count;
    if (count == 1) { // the common single point, without reading back what was stored piece by piece
        store(block.x, Register(points->x));
        store(block.y, Register(points->y));
        return;
    }
    for (int i = 0; i < count; ++i) {
        block.x[i] = points[i].x;
        block.y[i] = points[i].y;
    }
    for (int i = count; i % lanes != 0; ++i) // the last register is filled up with zeros
        block.x[i] = block.y[i] = 0;
}

} // namespace

void read(Block& block, DATUMPOINT const* points, int count) noexcept {
    copyIn(block, points, count);
    for (int i = 0; i < count; i += lanes) {
        Pair<Register> const p{load(block.x + i), load(block.y + i)};
        auto const good = isGood(p);
        store(block.x + i, select(good, p.x, Register(unplottable)));
        store(block.y + i, select(good, p.y, Register(unplottable)));
    }
}

void cut(Block& block) noexcept {
    for (int i = 0; i < block.count; i += lanes) {
        auto const p = normalised(Pair<Register>{load(block.x + i), load(block.y + i)});
        Register const turn =
            select(p.x < -180.0, Register(-360.0), select(p.x > 180.0, Register(360.0), Register(0.0)));
        store(block.x + i, p.x - turn);
        store(block.y + i, p.y);
        store(block.turn + i, turn);
    }
}

void restore(Block& block) noexcept {
    for (int i = 0; i < block.count; i += lanes) {
        auto const p = normalised(Pair<Register>{load(block.x + i) + load(block.turn + i), load(block.y + i)});
        store(block.x + i, p.x);
        store(block.y + i, p.y);
    }
}

bool write(Block const& block, DATUMPOINT* points) noexcept {
    bool allGood = true;
    for (int i = 0; i < block.count; i += lanes)
        allGood &= all(isGood(Pair<Register>{load(block.x + i), load(block.y + i)}));
    for (int i = 0; i < block.count; ++i)
        points[i] = {block.x[i], block.y[i]};
    if (allGood)
        return false;
    bool marked = false; // what fills up the last register does not count
    for (int i = 0; i < block.count; ++i)
        if (!isGood(Pair<double>{points[i].x, points[i].y})) {
            points[i] = {DBL_MAX, DBL_MAX};
            marked = true;
        }
    return marked;
}

} // namespace ZrProj::datum::ZRPROJ_LEVEL
