// Polynomial fits. The terms are those of u and v, from -1 to 1 over the controls: powers of raw pixel coordinates are
// so alike that their least-squares equations lose every digit at the third order. The coefficients are left centred,
// for the same reason, and only the scale is taken off them.
#include "georef/gOrder3.h"

#include "frame/errors.h"
#include "georef/least_squares.h"
#include "georef/terms.h"

#include <algorithm>
#include <cmath>

namespace ZrProj {
namespace {

Matrix termMatrix(std::span<Term const> terms, std::span<GEOREFPOINT const> points, Extent const& extent) {
    Matrix matrix(points.size(), terms.size());
    for (std::size_t k = 0; k < terms.size(); ++k) {
        auto const column = matrix.column(k);
        for (std::size_t i = 0; i < points.size(); ++i)
            column[i] = power((points[i].x - extent.centre.x) / extent.halfSize, terms[k].u) *
                        power((points[i].y - extent.centre.y) / extent.halfSize, terms[k].v);
    }
    return matrix;
}

} // namespace

std::optional<georef::Polynomial> fitPolynomial(int terms, Controls const& controls) {
    auto const exponents = termsOf(terms);
    if (controls.size() < exponents.size()) {
        AssertFailed(".\\gOrder3.cpp", __LINE__);
        return std::nullopt;
    }
    auto const from = extentOf(controls.source), to = extentOf(controls.target);
    auto const factors = Factorisation::of(termMatrix(exponents, controls.source, from), rankTolerance(from));
    if (!factors)
        return std::nullopt;
    auto const fit = [&](double GEOREFPOINT::*coordinate, double(&result)[10]) {
        std::vector<double> values(controls.size());
        std::ranges::transform(controls.target, values.begin(),
                               [&](auto& point) { return point.*coordinate - to.centre.*coordinate; });
        values = factors->solve(values);
        for (std::size_t k = 0; k < exponents.size(); ++k)
            result[k] = values[k] / power(from.halfSize, exponents[k].u + exponents[k].v);
        result[0] += to.centre.*coordinate;
        return std::ranges::all_of(result, [](double c) { return std::isfinite(c); });
    };
    georef::Polynomial map{.terms = terms, .centre = from.centre};
    if (!fit(&GEOREFPOINT::x, map.x) || !fit(&GEOREFPOINT::y, map.y))
        return std::nullopt;
    return map;
}

} // namespace ZrProj
