#include "georef/kernels/warp.h"

#include "formulas/elementary.h"
#include "georef/kernels/point_blocks.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {
namespace {

// Each basis is a function of the square of the distance, in the unit that Warp::perUnit makes.

struct ThinPlate { // r^2 ln r
    template <class R> R operator()(R rr) const {
        return 0.5 * rr * log(select(rr < DBL_MIN, R(DBL_MIN), rr)); // 0 at a control
    }
};
struct NaturalCubic { // r^3
    template <class R> R operator()(R rr) const { return rr * sqrt(rr); }
};
struct Marcov { // (1 + r) exp(-r)
    template <class R> R operator()(R rr) const {
        R const r = sqrt(rr);
        return (1.0 + r) * exp(-r);
    }
};
struct Exponential { // exp(-r)
    template <class R> R operator()(R rr) const { return exp(-sqrt(rr)); }
};
struct RationalQuadratic { // 1 / (1 + r^2)
    template <class R> R operator()(R rr) const { return 1.0 / (1.0 + rr); }
};

template <class R> Xy<R> inUnits(Warp const& map, Xy<R> p) {
    return {(p.x - map.centre.x) * map.perUnit, (p.y - map.centre.y) * map.perUnit};
}
template <class R> Xy<R> affinePart(Warp const& map, Xy<R> p) {
    return {map.x[0] + map.x[1] * p.x + map.x[2] * p.y, map.y[0] + map.y[1] * p.x + map.y[2] * p.y};
}
template <class R> R squaredDistance(Xy<R> p, R u, R v) {
    R const du = p.x - u, dv = p.y - v;
    return du * du + dv * dv;
}

template <class Basis> void mapBySpline(Warp const& map, GEOREFPOINT* points, std::size_t count) {
    mapPoints(
        [&map](Xy<Register> point) {
            auto const p = inUnits(map, point);
            Register x = 0.0, y = 0.0;
            for (std::size_t i = 0; i < map.controls; ++i) {
                Register const basis = Basis{}(squaredDistance(p, Register(map.u[i]), Register(map.v[i])));
                x = x + map.weightX[i] * basis;
                y = y + map.weightY[i] * basis;
            }
            auto const plane = affinePart(map, p);
            return Xy<Register>{plane.x + x, plane.y + y};
        },
        points, count);
}

/// At a control, or so close to one that 1/r^2 has no number, that control's residual alone counts.
void mapByDistances(Warp const& map, GEOREFPOINT* points, std::size_t count) {
    constexpr double least = 1e-300;
    mapPoints(
        [&map](Xy<Register> point) {
            auto const p = inUnits(map, point);
            Register x = 0.0, y = 0.0, sum = 0.0, hitX = 0.0, hitY = 0.0, hits = 0.0;
            for (std::size_t i = 0; i < map.controls; ++i) {
                Register const rr = squaredDistance(p, Register(map.u[i]), Register(map.v[i]));
                auto const hit = rr < least;
                Register const weight = 1.0 / select(hit, Register(1.0), rr);
                x = x + map.weightX[i] * weight;
                y = y + map.weightY[i] * weight;
                sum = sum + weight;
                hitX = select(hit, Register(map.weightX[i]), hitX);
                hitY = select(hit, Register(map.weightY[i]), hitY);
                hits = select(hit, Register(1.0), hits);
            }
            auto const plane = affinePart(map, p);
            auto const atControl = hits > 0.0;
            return Xy<Register>{plane.x + select(atControl, hitX, x / sum), plane.y + select(atControl, hitY, y / sum)};
        },
        points, count);
}

template <class Basis> void fillRow(Warp const& map, std::size_t i, double* row) {
    std::size_t const count = map.controls;
    auto const at = [&]<class R>(R u, R v) { return Basis{}(squaredDistance(Xy<R>{u, v}, R(map.u[i]), R(map.v[i]))); };
    std::size_t j = 0;
    for (; j + lanes <= count; j += lanes)
        store(row + j, at(load(&map.u[j]), load(&map.v[j])));
    for (; j < count; ++j)
        row[j] = at(map.u[j], map.v[j]);
}

} // namespace

void mapByWarp(Warp const& map, GEOREFPOINT* points, std::size_t count) noexcept {
    switch (map.method) {
    case WarpingMethodThinPlateSpline:
        return mapBySpline<ThinPlate>(map, points, count);
    case WarpingMethodNaturalCubicSpline:
        return mapBySpline<NaturalCubic>(map, points, count);
    case WarpingMethodMarcovSpline:
        return mapBySpline<Marcov>(map, points, count);
    case WarpingMethodExponentialSpline:
        return mapBySpline<Exponential>(map, points, count);
    case WarpingMethodRationalQuadraticSpline:
        return mapBySpline<RationalQuadratic>(map, points, count);
    default:
        return mapByDistances(map, points, count);
    }
}

void basisRow(Warp const& map, std::size_t i, double* row) noexcept {
    switch (map.method) {
    case WarpingMethodThinPlateSpline:
        return fillRow<ThinPlate>(map, i, row);
    case WarpingMethodNaturalCubicSpline:
        return fillRow<NaturalCubic>(map, i, row);
    case WarpingMethodMarcovSpline:
        return fillRow<Marcov>(map, i, row);
    case WarpingMethodExponentialSpline:
        return fillRow<Exponential>(map, i, row);
    default:
        return fillRow<RationalQuadratic>(map, i, row);
    }
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
