#include "georef/fit.h"

#include "georef/gHelmert.h"
#include "georef/gOrder3.h"
#include "georef/method_table.h"

#include <algorithm>
#include <array>
#include <cfloat>
#include <numeric>

namespace ZrProj {
namespace {

constexpr std::size_t mostOfWarps = 10000; // control points: 800 MB of equations

std::optional<GeorefMap> fitUnchecked(TransformMethod method, Controls const& controls) {
    if (isWarp(method)) {
        auto warp = fitWarp(static_cast<WarpingMethod>(method - TransformMethodThinPlateSpline), controls);
        return warp ? std::optional(GeorefMap(*std::move(warp))) : std::nullopt;
    }
    if (method == TransformMethodHelmert)
        return GeorefMap(fitHelmert(controls));
    auto const polynomial = fitPolynomial(georefMethodRow(method).terms, controls);
    return polynomial ? std::optional(GeorefMap(*polynomial)) : std::nullopt;
}

bool coincide(GEOREFPOINT const& a, GEOREFPOINT const& b) {
    return a.x == b.x && a.y == b.y;
}

/// The indices of two source points that coincide, if any.
std::optional<std::pair<std::size_t, std::size_t>> findTwins(std::span<GEOREFPOINT const> points) {
    std::vector<std::size_t> order(points.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::sort(order, {}, [&](std::size_t i) { return std::pair(points[i].x, points[i].y); });
    auto const found =
        std::ranges::adjacent_find(order, [&](std::size_t a, std::size_t b) { return coincide(points[a], points[b]); });
    return found == order.end() ? std::nullopt : std::optional(std::pair(found[0], found[1]));
}

std::size_t countDistinct(std::span<GEOREFPOINT const> points) {
    std::vector<GEOREFPOINT> distinct(points.begin(), points.end());
    std::ranges::sort(distinct, {}, [](GEOREFPOINT const& p) { return std::pair(p.x, p.y); });
    distinct.erase(std::unique(distinct.begin(), distinct.end(), coincide), distinct.end());
    return distinct.size();
}

/// Whether a method's map is determined by where the sources lie, whatever the targets.
bool doSourcesDetermine(TransformMethod method, std::span<GEOREFPOINT const> sources) {
    return fitGeoref(method, {sources, sources}).has_value();
}

/// What else keeps points that are not on one line from determining a map.
char const* shapeOf(TransformMethod method) {
    switch (method) {
    case TransformMethod1stOrderPolynomial:
        return "they lie on one hyperbola with axes along x and y, or on two lines along these";
    case TransformMethod2ndOrderPolynomial:
        return "they lie on one conic, such as a circle or two lines";
    case TransformMethod3rdOrderPolynomial:
        return "they lie on one cubic curve, such as a conic and a line";
    default:
        return "they lie too close together";
    }
}

using Powers = std::array<double, 4>; // of x or of y
using Grid = std::array<Powers, 4>;   // [i][j]: of x^i y^j

/// The coefficients in x of a polynomial in x - centre, by Horner's scheme.
void countFromZero(Powers& c, double centre) {
    for (std::size_t k = c.size(); k-- > 0;)
        for (std::size_t i = k; i + 1 < c.size(); ++i)
            c[i] -= centre * c[i + 1];
}

Grid expanded(georef::Polynomial const& map, double const (&coefficients)[10]) {
    Grid grid{};
    auto const terms = termsOf(map.terms);
    for (std::size_t k = 0; k < terms.size(); ++k)
        grid[terms[k].u][terms[k].v] = coefficients[k];
    for (Powers& row : grid)
        countFromZero(row, map.centre.y);
    for (std::size_t j = 0; j < grid.size(); ++j) {
        Powers column;
        for (std::size_t i = 0; i < grid.size(); ++i)
            column[i] = grid[i][j];
        countFromZero(column, map.centre.x);
        for (std::size_t i = 0; i < grid.size(); ++i)
            grid[i][j] = column[i];
    }
    return grid;
}

} // namespace

void GeorefMap::map(std::span<GEOREFPOINT> points) const noexcept {
    auto const& kernels = georef::kernels();
    if (auto const* const fitted = polynomial())
        kernels.mapByPolynomial(*fitted, levels::pointsOf(points.data(), points.size()));
    else
        kernels.mapByWarp(std::get<FittedWarp>(m_map).warp, levels::pointsOf(points.data(), points.size()));
}

bool areTooMany(TransformMethod method, std::size_t controls) {
    return isWarp(method) && controls > mostOfWarps;
}

std::optional<GeorefMap> fitGeoref(TransformMethod method, Controls const& controls) {
    if (method == TransformMethodPrecalculatedAffineCoefficients || areTooMany(method, controls.size()) ||
        controls.size() < georefMethodRow(method).needed || !areFinite(controls))
        return std::nullopt;
    auto map = fitUnchecked(method, controls);
    if (map && (*map)(controls.source[0]).x == DBL_MAX) // a similarity through points in one place
        return std::nullopt;
    return map;
}

std::string whyNoFit(TransformMethod method, Controls const& controls) {
    auto const& row = georefMethodRow(method);
    if (controls.size() < row.needed)
        return std::string(row.key) + " needs " + std::to_string(row.needed) + " control points, there are " +
               std::to_string(controls.size());
    if (areTooMany(method, controls.size()))
        return std::string(row.key) + " takes at most " + std::to_string(mostOfWarps) + " control points";
    auto const twins = findTwins(controls.source); // a least-squares fit that has enough others does not mind them
    if (twins && (isWarp(method) || countDistinct(controls.source) < row.needed))
        return "control points " + std::to_string(std::min(twins->first, twins->second) + 1) + " and " +
               std::to_string(std::max(twins->first, twins->second) + 1) + " lie at one source point";
    if (controls.size() > 2 && !doSourcesDetermine(TransformMethodAffinePolynomial, controls.source))
        return "the control points are all on one line";
    return "the control points do not determine a map by " + std::string(row.key) + ": " +
           (doSourcesDetermine(method, controls.source) ? "their target coordinates are too large" : shapeOf(method));
}

std::vector<Coefficient> coefficientsOf(GeorefMap const& map) {
    auto const* const polynomial = map.polynomial();
    if (!polynomial)
        return {};
    Grid const x = expanded(*polynomial, polynomial->x), y = expanded(*polynomial, polynomial->y);
    std::vector<Coefficient> result;
    for (Term const& term : termsOf(polynomial->terms))
        result.push_back({term.name, x[term.u][term.v], y[term.u][term.v]});
    return result;
}

} // namespace ZrProj
