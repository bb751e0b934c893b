#include "georef/warp_fit.h"

#include "georef/spline_equations.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace ZrProj {
namespace {

/// The distance of each point from its nearest neighbour, on average.
double meanNeighbourDistance(double const* u, double const* v, std::size_t count) {
    double sum = 0;
    for (std::size_t i = 0; i < count; ++i) {
        double nearest = HUGE_VAL;
        for (std::size_t j = 0; j < count; ++j) {
            double const du = u[i] - u[j], dv = v[i] - v[j], rr = du * du + dv * dv;
            nearest = i != j && rr < nearest ? rr : nearest;
        }
        sum += std::sqrt(nearest);
    }
    return sum / static_cast<double>(count);
}

bool hasUnit(WarpingMethod method) {
    return method == WarpingMethodMarcovSpline || method == WarpingMethodExponentialSpline ||
           method == WarpingMethodRationalQuadraticSpline;
}

void placeControls(FittedWarp& fitted, std::span<GEOREFPOINT const> source, double perUnit) {
    auto const& centre = fitted.warp.centre;
    double* const u = fitted.arrays.data();
    double* const v = u + source.size();
    for (std::size_t i = 0; i < source.size(); ++i) {
        u[i] = (source[i].x - centre.x) * perUnit;
        v[i] = (source[i].y - centre.y) * perUnit;
    }
    fitted.warp.perUnit = perUnit;
}

/// A warp that maps everything to the origin, with the controls placed from -1 to 1.
FittedWarp emptyWarp(WarpingMethod method, std::span<GEOREFPOINT const> source, Extent const& extent) {
    std::size_t const count = source.size();
    FittedWarp fitted;
    fitted.arrays.assign(4 * count, 0.0);
    double* const u = fitted.arrays.data();
    double* const v = u + count;
    fitted.warp = {.method = method,
                   .centre = extent.centre,
                   .controls = count,
                   .u = u,
                   .v = v,
                   .weightX = v + count,
                   .weightY = v + 2 * count};
    placeControls(fitted, source, 1 / extent.halfSize);
    return fitted;
}

bool areAnyCoincident(georef::Warp const& warp) {
    std::vector<std::pair<double, double>> points(warp.controls);
    for (std::size_t i = 0; i < points.size(); ++i)
        points[i] = {warp.u[i], warp.v[i]};
    std::ranges::sort(points);
    return std::ranges::adjacent_find(points) != points.end();
}

/// Places the controls in units of their mean neighbour distance s, in which some bases are defined. Returns false
/// where they are too close together for that.
bool chooseUnit(FittedWarp& fitted, std::span<GEOREFPOINT const> source) {
    auto const& warp = fitted.warp;
    placeControls(fitted, source, warp.perUnit / meanNeighbourDistance(warp.u, warp.v, warp.controls));
    return std::isfinite(warp.perUnit);
}

Matrix affineTerms(georef::Warp const& warp) {
    Matrix matrix(warp.controls, 3);
    std::ranges::fill(matrix.column(0), 1.0);
    std::copy_n(warp.u, warp.controls, matrix.column(1).begin());
    std::copy_n(warp.v, warp.controls, matrix.column(2).begin());
    return matrix;
}

/// The residuals of a warp at its controls, target less mapped, in x and in y.
struct Residuals {
    std::vector<double> x, y;

    double greatest() const {
        double result = 0;
        for (std::size_t i = 0; i < x.size(); ++i)
            result = std::max({result, std::fabs(x[i]), std::fabs(y[i])});
        return result;
    }
};

Residuals residualsOf(georef::Warp const& warp, Controls const& controls) {
    std::vector<GEOREFPOINT> mapped(controls.source.begin(), controls.source.end());
    georef::kernels().mapByWarp(warp, levels::pointsOf(mapped.data(), mapped.size()));
    Residuals residuals{std::vector<double>(mapped.size()), std::vector<double>(mapped.size())};
    for (std::size_t i = 0; i < mapped.size(); ++i) {
        residuals.x[i] = controls.target[i].x - mapped[i].x;
        residuals.y[i] = controls.target[i].y - mapped[i].y;
    }
    return residuals;
}

/// Fits the affine least-squares map of one coordinate; its coefficients go into `plane`, its residuals into `weights`.
void fitDistances(georef::Warp const& warp, Factorisation const& affine, std::span<GEOREFPOINT const> target,
                  double GEOREFPOINT::*coordinate, double (&plane)[3], double* weights) {
    std::vector<double> wanted(target.size());
    std::ranges::transform(target, wanted.begin(), coordinate);
    std::ranges::copy(affine.solve(wanted), plane);
    for (std::size_t i = 0; i < wanted.size(); ++i)
        weights[i] = wanted[i] - (plane[0] + plane[1] * warp.u[i] + plane[2] * warp.v[i]);
}

void add(std::span<double const> what, double* to) {
    for (double const value : what)
        *to++ += value;
}

/// Solves twice, the second time for the residuals that rounding left. Returns false where the controls are not met
/// even then.
bool fitSpline(FittedWarp& fitted, Factorisation const& affine, std::vector<double> matrix, Controls const& controls) {
    auto const equations = SplineEquations::of(fitted.warp, affine, std::move(matrix));
    if (!equations)
        return false;
    auto residuals = residualsOf(fitted.warp, controls);
    double const size = residuals.greatest();
    for (int round = 0; round < 2; ++round) {
        auto const x = equations->solve(residuals.x), y = equations->solve(residuals.y);
        add(x.weights, fitted.weightsX());
        add(y.weights, fitted.weightsY());
        add(x.affine, fitted.warp.x);
        add(y.affine, fitted.warp.y);
        residuals = residualsOf(fitted.warp, controls);
    }
    return residuals.greatest() <= 1e-7 * size;
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
    auto fitted = emptyWarp(method, controls.source, extent);
    if (areAnyCoincident(fitted.warp))
        return std::nullopt;
    std::vector<double> matrix; // made before the long work, since there may be no memory for it
    if (method != WarpingMethodInverseDistanceSquared)
        matrix.resize(controls.size() * controls.size());
    if (hasUnit(method) && !chooseUnit(fitted, controls.source))
        return std::nullopt;
    auto const affine = Factorisation::of(affineTerms(fitted.warp), rankTolerance(extent));
    if (!affine)
        return std::nullopt;
    auto const centre = extentOf(controls.target).centre;
    auto const target = countedFrom(centre, controls.target); // small numbers, whose residuals keep their digits
    auto& warp = fitted.warp;
    if (method == WarpingMethodInverseDistanceSquared) {
        fitDistances(warp, *affine, target, &GEOREFPOINT::x, warp.x, fitted.weightsX());
        fitDistances(warp, *affine, target, &GEOREFPOINT::y, warp.y, fitted.weightsY());
    } else if (!fitSpline(fitted, *affine, std::move(matrix), {controls.source, target})) {
        return std::nullopt;
    }
    warp.x[0] += centre.x;
    warp.y[0] += centre.y;
    return fitted;
}

} // namespace ZrProj
