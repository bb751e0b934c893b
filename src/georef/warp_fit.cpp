#include "georef/warp_fit.h"

#include "georef/spline_equations.h"

#include <algorithm>
#include <cmath>

namespace ZrProj {
namespace {

/// The distance of each point from its nearest neighbour, on average; 0 where two are in one place.
double meanNeighbourDistance(double const* u, double const* v, std::size_t count) {
    double sum = 0;
    for (std::size_t i = 0; i < count; ++i) {
        double nearest = HUGE_VAL;
        for (std::size_t j = 0; j < count; ++j) {
            double const du = u[i] - u[j], dv = v[i] - v[j], rr = du * du + dv * dv;
            nearest = i != j && rr < nearest ? rr : nearest;
        }
        if (nearest == 0)
            return 0;
        sum += std::sqrt(nearest);
    }
    return sum / static_cast<double>(count);
}

bool hasUnit(WarpingMethod method) {
    return method == WarpingMethodMarcovSpline || method == WarpingMethodExponentialSpline ||
           method == WarpingMethodRationalQuadraticSpline;
}

/// A warp that maps everything to the origin, with the controls in place. False where two of these are in one place.
bool placeControls(FittedWarp& fitted, WarpingMethod method, std::span<GEOREFPOINT const> source,
                   Extent const& extent) {
    std::size_t const count = source.size();
    fitted.arrays.assign(4 * count, 0.0);
    double* const u = fitted.arrays.data();
    double* const v = u + count;
    auto const place = [&](double perUnit) {
        for (std::size_t i = 0; i < count; ++i) {
            u[i] = (source[i].x - extent.centre.x) * perUnit;
            v[i] = (source[i].y - extent.centre.y) * perUnit;
        }
        fitted.warp.perUnit = perUnit;
    };
    fitted.warp = {.method = method,
                   .centre = extent.centre,
                   .controls = count,
                   .u = u,
                   .v = v,
                   .weightX = v + count,
                   .weightY = v + 2 * count};
    place(1 / extent.halfSize);
    double const distance = meanNeighbourDistance(u, v, count);
    if (hasUnit(method))
        place(1 / (extent.halfSize * distance));
    return distance > 0;
}

Matrix affineTerms(formulas::Warp const& warp) {
    Matrix matrix(warp.controls, 3);
    std::ranges::fill(matrix.column(0), 1.0);
    std::copy_n(warp.u, warp.controls, matrix.column(1).begin());
    std::copy_n(warp.v, warp.controls, matrix.column(2).begin());
    return matrix;
}

/// What a warp lacks at the controls, in x and in y.
struct Lack {
    std::vector<double> x, y;

    double greatest() const {
        double result = 0;
        for (std::size_t i = 0; i < x.size(); ++i)
            result = std::max({result, std::fabs(x[i]), std::fabs(y[i])});
        return result;
    }
};

Lack lackOf(formulas::Warp const& warp, Controls const& controls) {
    std::vector<GEOREFPOINT> mapped(controls.source.begin(), controls.source.end());
    formulas::georefKernels().mapByWarp(warp, mapped.data(), mapped.size());
    Lack lack{std::vector<double>(mapped.size()), std::vector<double>(mapped.size())};
    for (std::size_t i = 0; i < mapped.size(); ++i) {
        lack.x[i] = controls.target[i].x - mapped[i].x;
        lack.y[i] = controls.target[i].y - mapped[i].y;
    }
    return lack;
}

/// The affine least-squares map, and what it lacks.
void fitDistances(FittedWarp& fitted, Factorisation const& affine, Controls const& controls) {
    auto& warp = fitted.warp;
    auto const start = lackOf(warp, controls);
    auto const x = affine.solve(start.x), y = affine.solve(start.y);
    for (std::size_t i = 0; i < 3; ++i) {
        warp.x[i] += x[i];
        warp.y[i] += y[i];
    }
    auto const rest = lackOf(warp, controls);
    std::ranges::copy(rest.x, fitted.weightsX());
    std::ranges::copy(rest.y, fitted.weightsY());
}

void add(std::span<double const> what, double* to) {
    for (double const value : what)
        *to++ += value;
}

/// Solves twice, the second time for what rounding left. False where the controls are not met after that.
bool fitSpline(FittedWarp& fitted, Factorisation const& affine, Controls const& controls) {
    auto const equations = SplineEquations::of(fitted.warp, affine);
    if (!equations)
        return false;
    auto lack = lackOf(fitted.warp, controls);
    double const size = lack.greatest();
    for (int round = 0; round < 2; ++round) {
        auto const x = equations->solve(lack.x), y = equations->solve(lack.y);
        add(x.weights, fitted.weightsX());
        add(y.weights, fitted.weightsY());
        add(x.plane, fitted.warp.x);
        add(y.plane, fitted.warp.y);
        lack = lackOf(fitted.warp, controls);
    }
    return lack.greatest() <= 1e-7 * size;
}

std::vector<GEOREFPOINT> countedFrom(GEOREFPOINT const& centre, std::span<GEOREFPOINT const> points) {
    std::vector<GEOREFPOINT> result(points.begin(), points.end());
    for (auto& point : result)
        point = {point.x - centre.x, point.y - centre.y};
    return result;
}

bool isMethod(WarpingMethod method) {
    return method >= WarpingMethodThinPlateSpline && method <= WarpingMethodInverseDistanceSquared;
}

} // namespace

std::optional<FittedWarp> fitWarp(WarpingMethod method, Controls const& controls) {
    if (!isMethod(method) || controls.size() < 3 || !areFinite(controls))
        return std::nullopt;
    auto const extent = extentOf(controls.source);
    FittedWarp fitted;
    if (!placeControls(fitted, method, controls.source, extent))
        return std::nullopt;
    auto const affine = Factorisation::of(affineTerms(fitted.warp), rankTolerance(extent));
    if (!affine)
        return std::nullopt;
    auto const centre = extentOf(controls.target).centre;
    auto const target = countedFrom(centre, controls.target); // small numbers: what is lacking shows in full
    if (method == WarpingMethodInverseDistanceSquared)
        fitDistances(fitted, *affine, {controls.source, target});
    else if (!fitSpline(fitted, *affine, {controls.source, target}))
        return std::nullopt;
    fitted.warp.x[0] += centre.x;
    fitted.warp.y[0] += centre.y;
    return fitted;
}

} // namespace ZrProj
