// Shifts by grids: bilinear interpolation between the four nodes around a place, in the finest grid that has it.
//
// Source    National Transformation Version 2, Developer's Guide (Geodetic Survey of Canada).
// Departs   a node's shift is taken to 24 bits in radians, as PROJ does, which changes a shift of an arcsecond by less
//           than 2e-11 degrees, so that results are the same as PROJ's. The way back is the exact inverse of the
//           way there, in the cell where both meet.
// Accuracy  of the evaluation 1e-13 degrees, there and back 1e-12 degrees (measured by the tests).
// Domain    the grids, with a hundred-thousandth of a cell around them. Places that none has, and cells with a corner
//           that is no shift, are lost. The way back is lost where the shifts turn round and do not invert.
//
// u, v      position in a cell, in cells from its south-eastern corner to the west and to the north
#include "datum/grid_set.h"
#include "datum/kernels/method.h"
#include "levels/level.h"

#include <algorithm>
#include <bit>

namespace ZrProj {
namespace datum::ZRPROJ_LEVEL {
namespace {

constexpr double magic = 0x1.8p52; // a number added and taken away again is rounded to a whole one

template <class R> R clamped(R x, R least, R most) {
    x = select(x < least, least, x);
    return select(x > most, most, x);
}
template <class R> R floorOf(R x) {
    R const nearest = (x + magic) - magic;
    return select(nearest > x, nearest - 1.0, nearest);
}

/// A cell of a grid, and a place in it or, in the margin that the grid has, near it.
template <class R> struct Cell {
    Condition<R> found;
    R u, v;
    R perDx, perDy;
    R corner, next; // the word of its south-eastern node, and of the one to the north of that
};

template <class R> Cell<R> chosen(Condition<R> condition, Cell<R> const& yes, Cell<R> const& no) {
    return {Condition<R>(condition | no.found),     select(condition, yes.u, no.u),
            select(condition, yes.v, no.v),         select(condition, yes.perDx, no.perDx),
            select(condition, yes.perDy, no.perDy), select(condition, yes.corner, no.corner),
            select(condition, yes.next, no.next)};
}

/// Shifts in degrees to the west and to the north, or what they are polynomials of: 1, u, v and u v.
template <class R> struct Shifts { R west, north; };

template <class R> struct Patch {
    Condition<R> good;
    Shifts<R> one, u, v, uv;

    /// At the nearest place of the cell: beside a grid's edge the shifts are those on it.
    Shifts<R> within(R x, R y) const { return at(clamped(x, R(0.0), R(1.0)), clamped(y, R(0.0), R(1.0))); }

    Shifts<R> at(R x, R y) const {
        return {one.west + u.west * x + (v.west + uv.west * x) * y,
                one.north + u.north * x + (v.north + uv.north * x) * y};
    }
};

/// A longitude up to a turn and a half away as one between -180 and 180.
template <class R> R withinTurn(R lon) {
    return select(lon > 180.0, lon - 360.0, select(lon < -180.0, lon + 360.0, lon));
}

struct Grids {
    GridSet const& set;

    /// The finest grid of those up to a depth that has the place; `margin` is in multiples of the grids' own reach.
    template <class R> Cell<R> locate(Pair<R> p, int mostDepth, double margin) const {
        R const lon = withinTurn(p.x);
        R at = -1.0, west = 0.0, north = 0.0, perDx = 1.0, perDy = 1.0, columns = 2.0, rows = 2.0, first = 0.0;
        auto const count = static_cast<int>(set.rows.size());
        for (int i = 0; i < count;) {
            GridRow const& row = set.rows[static_cast<std::size_t>(i)];
            double const reach = row.reach * margin;
            R const past = row.east - lon, x = select(past < -reach, past + 360.0, past), y = p.y - row.south;
            auto const taken = (at == static_cast<double>(row.parent)) & (x >= -reach) & (x <= row.width + reach) &
                               (y >= -reach) & (y <= row.height + reach);
            if (row.depth > mostDepth || !any(taken)) {
                i = row.end;
                continue;
            }
            at = select(taken, R(i), at);
            west = select(taken, x, west), north = select(taken, y, north);
            perDx = select(taken, R(row.perDx), perDx), perDy = select(taken, R(row.perDy), perDy);
            columns = select(taken, R(row.columns), columns), rows = select(taken, R(row.rows), rows);
            first = select(taken, R(row.firstWord), first);
            ++i;
        }
        R const u = west * perDx, v = north * perDy;
        R const column = clamped(floorOf(u), R(0.0), columns - 2.0), line = clamped(floorOf(v), R(0.0), rows - 2.0);
        R const corner = first + 2.0 * (line * columns + column);
        return {at >= 0.0, u - column, v - line, perDx, perDy, corner, corner + 2.0 * columns};
    }

    template <class R> Patch<R> patchOf(Cell<R> const& cell) const {
        Shifts<R> const se = node(cell.corner), sw = node(cell.corner + 2.0);
        Shifts<R> const ne = node(cell.next), nw = node(cell.next + 2.0);
        R const size = abs(se.west) + abs(se.north) + abs(sw.west) + abs(sw.north) + abs(ne.west) + abs(ne.north) +
                       abs(nw.west) + abs(nw.north);
        Shifts<R> const u{sw.west - se.west, sw.north - se.north}, v{ne.west - se.west, ne.north - se.north};
        return {size < 180.0, se, u, v, {nw.west - ne.west - u.west, nw.north - ne.north - u.north}};
    }

    template <class R> Pair<R> shifted(Pair<R> p) const {
        Cell<R> const cell = locate(p, set.depth, 1);
        Patch<R> const patch = patchOf(cell);
        Shifts<R> const shift = patch.within(cell.u, cell.v);
        R const latitude = p.y + shift.north;
        auto const good = cell.found & patch.good & (abs(latitude) <= 90.0);
        return {select(good, p.x - shift.west, R(notANumber)), select(good, latitude, R(notANumber))};
    }

private:
    template <class R> Shifts<R> node(R word) const {
        auto bits = lookUp(set.words, word);
        if (set.isSwapped) {
            bits = ((bits & 0x00FF00FF00FF00FF) << 8) ^ ((bits >> 8) & 0x00FF00FF00FF00FF);
            bits = ((bits & 0x0000FFFF0000FFFF) << 16) ^ ((bits >> 16) & 0x0000FFFF0000FFFF);
        }
        auto const low = bits & 0xFFFFFFFF, high = bits >> 32;
        if constexpr (std::endian::native == std::endian::little)
            return {degreesOf<R>(high), degreesOf<R>(low)};
        else
            return {degreesOf<R>(low), degreesOf<R>(high)};
    }

    /// A number of 32 bits, in the unit of the grids, as degrees. What is infinite or none comes out above 2^100.
    template <class R, class Bits> R degreesOf(Bits single) const {
        R const value = fromBits(((single & 0x7FFFFFFF) << 29) ^ ((single & 0x80000000) << 32)) * 0x1p896;
        auto const rounded = (bitsOf(value * set.unit) + 0x10000000) & 0xFFFFFFFFE0000000; // to 24 bits
        return fromBits(rounded) * radian;
    }
};

struct ForwardShift {
    Grids grids;

    explicit ForwardShift(void const* set) : grids{*static_cast<GridSet const*>(set)} {}
    template <class R> Pair<R> convert(Pair<R> degrees) const { return grids.shifted(degrees); }
};

/// Looks for the cell in which the place that is shifted to the given one lies: in the cell where the search stands,
/// the shifts are one polynomial, whose solution tells the next cell, until it lies in the very cell that it is one of.
struct InverseShift {
    Grids grids;

    explicit InverseShift(void const* set) : grids{*static_cast<GridSet const*>(set)} {}

    template <class R> Pair<R> convert(Pair<R> target) const {
        Pair<R> found{R(notANumber), R(notANumber)};
        Condition<R> settled = !(target.x == target.x);
        // Along a border where the finer grid's shifts are not those of the coarser one, places may be seen by neither:
        // they belong to the coarser one.
        for (int depth = grids.set.depth; depth >= 0 && !all(settled); --depth)
            search(target, depth, found, settled);
        return found;
    }

private:
    static constexpr int mostCells = 12, mostSteps = 8;
    static constexpr double tolerance = 1e-13; // degrees
    static constexpr double mostMargin = 1e5;  // a cell to each side

    template <class R> void search(Pair<R> target, int depth, Pair<R>& found, Condition<R>& settled) const {
        Pair<R> p = target;
        Cell<R> cell = near(p, depth);
        settled = settled | !cell.found;
        for (int i = 0; i < mostCells && !all(settled); ++i) {
            Patch<R> const patch = grids.patchOf(cell);
            auto solved = patch.good;
            Pair<R> const next = solution(target, p, cell, patch, solved);
            Cell<R> const nextCell = grids.locate(next, depth, 1);
            auto const moved = (abs(next.x - p.x) > 10 * tolerance) | (abs(next.y - p.y) > 10 * tolerance);
            auto const here = solved & nextCell.found & ((nextCell.corner == cell.corner) | !moved) & !settled;
            found = {select(here, next.x, found.x), select(here, next.y, found.y)};
            settled = settled | here | !nextCell.found | !patch.good;
            p = next;
            cell = nextCell;
        }
    }

    /// The cell that a place lies in or, since it may have come out of a grid, one at the edge of a grid nearby.
    template <class R> Cell<R> near(Pair<R> p, int depth) const {
        Cell<R> cell = grids.locate(p, depth, 1);
        for (double margin = 10; margin <= mostMargin && !all(cell.found); margin *= 10)
            cell = chosen(cell.found, cell, grids.locate(p, depth, margin));
        return cell;
    }

    /// Where the polynomial of a cell shifts to the target, by Newton's method from `p`, which the cell is told of.
    template <class R>
    static Pair<R> solution(Pair<R> target, Pair<R> p, Cell<R> const& cell, Patch<R> const& patch,
                            Condition<R>& solved) {
        R const x = cell.u + (p.x - target.x) * cell.perDx, y = cell.v + (target.y - p.y) * cell.perDy;
        R u = cell.u, v = cell.v;
        auto moving = solved;
        for (int i = 0; i < mostSteps && any(moving); ++i) {
            Shifts<R> const shift = patch.at(u, v);
            R const a = u + shift.west * cell.perDx - x, b = v + shift.north * cell.perDy - y;
            R const au = 1.0 + (patch.u.west + patch.uv.west * v) * cell.perDx;
            R const av = (patch.v.west + patch.uv.west * u) * cell.perDx;
            R const bu = (patch.u.north + patch.uv.north * v) * cell.perDy;
            R const bv = 1.0 + (patch.v.north + patch.uv.north * u) * cell.perDy;
            R const det = au * bv - av * bu, over = 1.0 / select(abs(det) < 1e-3, R(1.0), det);
            R const du = (a * bv - b * av) * over, dv = (b * au - a * bu) * over;
            u = select(moving, clamped(u - du, R(-16.0), R(16.0)), u); // a solution farther off is another cell's
            v = select(moving, clamped(v - dv, R(-16.0), R(16.0)), v);
            moving = moving & ((abs(du) > tolerance * cell.perDx) | (abs(dv) > tolerance * cell.perDy));
        }
        // What lies beside the cell is no solution, but the way to one; unless the grid ends there.
        Shifts<R> const shift = patch.within(u, v);
        Shifts<R> const there = patch.within(x - shift.west * cell.perDx, y - shift.north * cell.perDy);
        solved = solved & !moving & (abs(there.west - shift.west) < 5 * tolerance) &
                 (abs(there.north - shift.north) < 5 * tolerance);
        return {target.x + shift.west, target.y - shift.north};
    }
};

/// Whole turns do not count; latitudes beyond a pole are no place of a grid.
inline Pair<double> withoutTurnsOfLongitude(Pair<double> degrees) {
    return {std::fmod(degrees.x, 360.0), degrees.y};
}
inline Pair<double> withinTurns(Pair<double> degrees) {
    return withoutTurnsOfLongitude(degrees);
}
#if !defined(ZRPROJ_LEVEL_scalar)
inline Pair<Register> withinTurns(Pair<Register> degrees) {
    return eachLaneWhere<withoutTurnsOfLongitude>(abs(degrees.x) >= 360.0, degrees);
}
#endif

template <class Way> struct GridStage : Way {
    using Way::Way;

    template <class R> Pair<R> enter(Pair<R> degrees) const { return withinTurns(degrees); }
    template <class R> Pair<R> leave(Pair<R> degrees) const { return degrees; }
};

} // namespace
} // namespace datum::ZRPROJ_LEVEL

template <>
datum::GridOperations const& levels::operationsOf<datum::GridOperations, levels::ZRPROJ_LEVEL::Home>() noexcept {
    using namespace datum::ZRPROJ_LEVEL;
    static constexpr datum::GridOperations operations{
        levels::ZRPROJ_LEVEL::convert,
        {runStage<GridStage<ForwardShift>>, runStageAlone<GridStage<ForwardShift>>},
        {runStage<GridStage<InverseShift>>, runStageAlone<GridStage<InverseShift>>}};
    return operations;
}

} // namespace ZrProj
