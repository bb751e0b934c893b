#include "georef/kernels/kernels.h"

namespace ZrProj::georef::ZRPROJ_LEVEL {
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

template <class R> Pair<R> inUnits(Warp const& map, Pair<R> p) {
    return {(p.x - map.centre.x) * map.perUnit, (p.y - map.centre.y) * map.perUnit};
}
template <class R> Pair<R> affinePart(Warp const& map, Pair<R> p) {
    return {map.x[0] + map.x[1] * p.x + map.x[2] * p.y, map.y[0] + map.y[1] * p.x + map.y[2] * p.y};
}
template <class R> R squaredDistance(Pair<R> p, R u, R v) {
    R const du = p.x - u, dv = p.y - v;
    return du * du + dv * dv;
}

/// A warp as a stage.
struct WarpStage {
    Warp const& map;

    explicit WarpStage(void const* warp) : map(*static_cast<Warp const*>(warp)) {}

    template <class R> Pair<R> enter(Pair<R> p) const { return inUnits(map, p); }
    template <class R> Pair<R> leave(Pair<R> p) const { return p; }
};

template <class Basis> struct Spline : WarpStage {
    using WarpStage::WarpStage;

    template <class R> Pair<R> convert(Pair<R> p) const {
        R x = 0.0, y = 0.0;
        for (std::size_t i = 0; i < map.controls; ++i) {
            R const basis = Basis{}(squaredDistance(p, R(map.u[i]), R(map.v[i])));
            x = x + map.weightX[i] * basis;
            y = y + map.weightY[i] * basis;
        }
        auto const plane = affinePart(map, p);
        return {plane.x + x, plane.y + y};
    }
};

/// At a control, or so close to one that 1/r^2 has no number, that control's residual alone counts.
struct InverseDistances : WarpStage {
    using WarpStage::WarpStage;

    template <class R> Pair<R> convert(Pair<R> p) const {
        constexpr double least = 1e-300;
        R x = 0.0, y = 0.0, sum = 0.0, hitX = 0.0, hitY = 0.0, hits = 0.0;
        for (std::size_t i = 0; i < map.controls; ++i) {
            R const rr = squaredDistance(p, R(map.u[i]), R(map.v[i]));
            auto const hit = rr < least;
            R const weight = 1.0 / select(hit, R(1.0), rr);
            x = x + map.weightX[i] * weight;
            y = y + map.weightY[i] * weight;
            sum = sum + weight;
            hitX = select(hit, R(map.weightX[i]), hitX);
            hitY = select(hit, R(map.weightY[i]), hitY);
            hits = select(hit, R(1.0), hits);
        }
        auto const plane = affinePart(map, p);
        auto const atControl = hits > 0.0;
        return {plane.x + select(atControl, hitX, x / sum), plane.y + select(atControl, hitY, y / sum)};
    }
};

levels::StageCode stageCodeOf(WarpingMethod method) {
    switch (method) {
    case WarpingMethodThinPlateSpline:
        return codeOf<Spline<ThinPlate>>();
    case WarpingMethodNaturalCubicSpline:
        return codeOf<Spline<NaturalCubic>>();
    case WarpingMethodMarcovSpline:
        return codeOf<Spline<Marcov>>();
    case WarpingMethodExponentialSpline:
        return codeOf<Spline<Exponential>>();
    case WarpingMethodRationalQuadraticSpline:
        return codeOf<Spline<RationalQuadratic>>();
    default:
        return codeOf<InverseDistances>();
    }
}

template <class Basis> void fillRow(Warp const& map, std::size_t i, double* row) {
    std::size_t const count = map.controls;
    auto const at = [&]<class R>(R u, R v) {
        return Basis{}(squaredDistance(Pair<R>{u, v}, R(map.u[i]), R(map.v[i])));
    };
    std::size_t j = 0;
    for (; j + lanes <= count; j += lanes)
        store(row + j, at(load(&map.u[j]), load(&map.v[j])));
    for (; j < count; ++j)
        row[j] = at(map.u[j], map.v[j]);
}

} // namespace

void mapByWarp(Warp const& map, levels::Points points) noexcept {
    levels::Stage const stage{stageCodeOf(map.method), &map};
    convert(&stage, 1, points, {});
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

} // namespace ZrProj::georef::ZRPROJ_LEVEL
