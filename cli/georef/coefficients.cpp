// A polynomial's coefficients, from what it maps a few points to: the library gives no others. The controls are first
// moved and scaled to lie between -1 and 1, which moves and scales the fit with them, so that the values are small and
// keep their digits; the polynomial through them is then written out for the source coordinates.
#include "cli/georef/coefficients.h"

#include "cli/georef/analysis.h"
#include "cli/georef/terms.h"

#include <algorithm>
#include <array>

namespace ZrProj::Command {
namespace {

constexpr std::size_t order = 3, knots = order + 1;
using Powers = std::array<double, knots>;  // of u
using Grid = std::array<Powers, knots>;    // [i][j]: of u^i v^j, or the values at knots i and j
constexpr Powers places{-1, -0.5, 0.5, 1}; // where the knots are

/// Along one of its sides, the middle of what controls cover, and the half of it.
struct Side {
    double middle, half;
};

template <class Coordinate> Side sideOf(std::vector<ControlPoint> const& controls, Coordinate const& coordinate) {
    auto const [least, most] = std::minmax_element(controls.begin(), controls.end(),
                                                   [&](auto& a, auto& b) { return coordinate(a) < coordinate(b); });
    double const low = coordinate(*least), high = coordinate(*most);
    return {low / 2 + high / 2, high / 2 - low / 2};
}

/// The coefficients of the polynomial through the values at the knots: Newton's divided differences, written out.
Powers through(Powers values) {
    for (std::size_t k = 1; k < knots; ++k)
        for (std::size_t i = knots; i-- > k;)
            values[i] = (values[i] - values[i - 1]) / (places[i] - places[i - k]);
    for (std::size_t k = knots; k-- > 0;)
        for (std::size_t i = k; i + 1 < knots; ++i)
            values[i] -= places[k] * values[i + 1];
    return values;
}

/// The coefficients in x of a polynomial in u = (x - middle) / half.
Powers unscaled(Powers c, Side const& side) {
    double scale = 1;
    for (double& value : c) {
        value *= scale;
        scale /= side.half;
    }
    for (std::size_t k = knots; k-- > 0;)
        for (std::size_t i = k; i + 1 < knots; ++i)
            c[i] -= side.middle * c[i + 1];
    return c;
}

template <class WorkU, class WorkV> void alongBoth(Grid& grid, WorkU const& workU, WorkV const& workV) {
    for (Powers& row : grid)
        row = workV(row);
    for (std::size_t j = 0; j < knots; ++j) {
        Powers column;
        for (std::size_t i = 0; i < knots; ++i)
            column[i] = grid[i][j];
        column = workU(column);
        for (std::size_t i = 0; i < knots; ++i)
            grid[i][j] = column[i];
    }
}

/// The controls' boxes, by their sides.
struct Frame {
    Side u, v, x, y;

    explicit Frame(std::vector<ControlPoint> const& controls)
        : u(sideOf(controls, [](auto& c) { return c.source.x; })),
          v(sideOf(controls, [](auto& c) { return c.source.y; })),
          x(sideOf(controls, [](auto& c) { return c.target.x; })),
          y(sideOf(controls, [](auto& c) { return c.target.y; })) {
        u.half = v.half = std::max(u.half, v.half); // a similarity must stay one
    }

    std::vector<ControlPoint> moved(std::vector<ControlPoint> controls) const {
        for (auto& c : controls) {
            c.source = {(c.source.x - u.middle) / u.half, (c.source.y - v.middle) / v.half};
            c.target = {c.target.x - x.middle, c.target.y - y.middle};
        }
        return controls;
    }
};

/// The values at the knots, as coefficients in source coordinates. Terms that the method has not are rounding.
void writeOut(Grid& grid, TransformMethod method, Frame const& frame) {
    alongBoth(grid, through, through);
    for (std::size_t i = 0; i < knots; ++i)
        for (std::size_t j = 0; j < knots; ++j)
            if (i + j > order || !hasTerm(method, {"", i, j}))
                grid[i][j] = 0;
    alongBoth(
        grid, [&](Powers const& c) { return unscaled(c, frame.u); },
        [&](Powers const& c) { return unscaled(c, frame.v); });
}

} // namespace

std::vector<GeorefCoefficient> georefCoefficients(GeorefMethod const& method,
                                                  std::vector<ControlPoint> const& controls) {
    if (isExact(method))
        return {};
    Frame const frame(controls);
    auto const map = fitGeoref(method, frame.moved(controls));
    Grid gridX{}, gridY{};
    for (std::size_t i = 0; i < knots; ++i)
        for (std::size_t j = 0; j < knots; ++j) {
            GEOREFPOINT point{places[i], places[j]};
            map->Forward(&point, 1);
            gridX[i][j] = point.x;
            gridY[i][j] = point.y;
        }
    writeOut(gridX, method.method, frame);
    writeOut(gridY, method.method, frame);
    gridX[0][0] += frame.x.middle;
    gridY[0][0] += frame.y.middle;
    std::vector<GeorefCoefficient> result;
    for (GeorefTerm const& term : georefTerms)
        if (hasTerm(method.method, term))
            result.push_back({term.name, gridX[term.i][term.j], gridY[term.i][term.j]});
    return result;
}

} // namespace ZrProj::Command
