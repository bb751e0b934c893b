#include "files/geotiff/placement.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

namespace ZrProj::GeoTIFF {
namespace {

constexpr std::size_t tiePointSize = 6; // column, row, 0, X, Y, Z
constexpr std::size_t fewestControls = 3;

bool areFinite(std::vector<double> const& values) {
    return std::ranges::all_of(values, [](double value) { return std::isfinite(value); });
}

bool isUsable(Coefficients const& c) {
    double const determinant = c.A * c.E - c.B * c.D;
    return areFinite({c.A, c.B, c.C, c.D, c.E, c.F, determinant}) && determinant != 0;
}

/// From counting pixel centres to counting corners: a pixel's corner is half a pixel before its centre.
Coefficients fromCentres(Coefficients c) {
    c.C -= (c.A + c.B) / 2;
    c.F -= (c.D + c.E) / 2;
    return c;
}

Expected<Placement> placementOf(Coefficients const& c, bool pixelIsPoint) {
    Coefficients const fromCorner = pixelIsPoint ? fromCentres(c) : c;
    if (!isUsable(fromCorner))
        return Refusal{"the pixels' placement is not usable"};
    return Placement{fromCorner, {}, {}};
}

/// Rows of four: x, y, z and 1 to X, Y, Z and 1.
Expected<Placement> readMatrix(std::vector<double> const& m, bool pixelIsPoint) {
    if (m.size() != 16 || m[12] != 0 || m[13] != 0 || m[14] != 0 || m[15] != 1)
        return Refusal{"the transformation matrix is not affine"};
    return placementOf({m[0], m[1], m[3], m[4], m[5], m[7]}, pixelIsPoint);
}

Expected<Placement> readScale(std::vector<double> const& scale, std::vector<double> const& tie, bool pixelIsPoint) {
    if (scale.size() < 2 || tie.size() < tiePointSize)
        return Refusal{"the pixel scale has no tie point"};
    if (scale[0] == 0 || scale[1] == 0)
        return Refusal{"the pixel scale is 0"};
    auto placement =
        placementOf({scale[0], 0, tie[3] - tie[0] * scale[0], 0, -scale[1], tie[4] + tie[1] * scale[1]}, pixelIsPoint);
    if (!placement || (scale[0] > 0 && scale[1] > 0))
        return placement;
    Placement mirrored = *placement;
    mirrored.noticed = "the pixel scale is negative: the image is mirrored, as the standard has it; some programs take "
                       "the scale without its sign";
    return mirrored;
}

Expected<Placement> readTiePoints(std::vector<double> const& tie, bool pixelIsPoint) {
    if (tie.size() / tiePointSize < fewestControls)
        return Refusal{"tie points without a pixel scale must be three or more"};
    double const corner = pixelIsPoint ? 0.5 : 0;
    Placement result;
    for (std::size_t i = 0; i + tiePointSize <= tie.size(); i += tiePointSize)
        result.points.push_back({{tie[i] + corner, tie[i + 1] + corner}, {tie[i + 3], tie[i + 4]}});
    return result;
}

PlacementTags tagsOf(Coefficients const& c) {
    if (c.B == 0 && c.D == 0 && c.A > 0 && c.E < 0)
        return {{c.A, -c.E, 0}, {0, 0, 0, c.C, c.F, 0}, {}};
    return {{}, {}, {c.A, c.B, 0, c.C, c.D, c.E, 0, c.F, 0, 0, 0, 0, 0, 0, 0, 1}};
}

/// A Helmert system is a matrix: where it puts the origin and the ends of the axes.
Expected<Coefficients> helmert(GEOREF const& georef) {
    CGeorefTransform system(&georef);
    std::array<GEOREFPOINT, 3> p{{{0, 0}, {1, 0}, {0, 1}}};
    if (!system.Forward(p.data(), static_cast<int>(p.size())))
        return Refusal{"the control points make no Helmert system"};
    return Coefficients{p[1].x - p[0].x, p[2].x - p[0].x, p[0].x, p[1].y - p[0].y, p[2].y - p[0].y, p[0].y};
}

double largestCoordinate(std::span<GEOREFPOINT const> points) {
    double largest = 0;
    for (GEOREFPOINT const& point : points)
        largest = std::max({largest, std::fabs(point.x), std::fabs(point.y)});
    return largest;
}

/// The affine map that the controls lie on but for the rounding of numbers to 15 digits; nothing where they do not.
std::optional<Coefficients> exactAffine(GEOREF const& georef) {
    std::span const pixels(georef.pSource, static_cast<std::size_t>(georef.nControls));
    double const width = largestCoordinate(pixels), size = largestCoordinate({georef.pTarget, pixels.size()}),
                 rounding = 2e-14 * size;
    GEOREF fit = georef;
    if (!RefControlsToCoeff(&fit))
        return std::nullopt;
    for (double* slope : {&fit.A, &fit.B, &fit.D, &fit.E})
        if (width * std::fabs(*slope) <= rounding)
            *slope = 0;
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        auto const [x, y] = pixels[i];
        auto const [X, Y] = georef.pTarget[i];
        double const missX = fit.A * x + fit.B * y + fit.C - X, missY = fit.D * x + fit.E * y + fit.F - Y;
        if (!(std::hypot(missX, missY) <= rounding))
            return std::nullopt;
    }
    return Coefficients{fit.A, fit.B, fit.C, fit.D, fit.E, fit.F};
}

Expected<PlacementTags> tiePointsOf(GEOREF const& georef) {
    PlacementTags result;
    for (std::int32_t i = 0; i < georef.nControls; ++i)
        result.tiePoints.insert(result.tiePoints.end(), {georef.pSource[i].x, georef.pSource[i].y, 0,
                                                         georef.pTarget[i].x, georef.pTarget[i].y, 0});
    if (!areFinite(result.tiePoints))
        return Refusal{"a control point is no number"};
    return result;
}

Expected<PlacementTags> controlsOf(GEOREF const& georef) {
    bool const isMatrix = georef.Method == TransformMethodHelmert;
    std::int32_t const fewest = isMatrix ? 2 : static_cast<std::int32_t>(fewestControls);
    if (!georef.pSource || !georef.pTarget || georef.nControls < fewest)
        return Refusal{"the georeference has too few control points"};
    if (georef.Method == TransformMethodAffinePolynomial)
        if (auto const affine = exactAffine(georef); affine && isUsable(*affine))
            return tagsOf(*affine);
    if (!isMatrix)
        return tiePointsOf(georef);
    auto const matrix = helmert(georef);
    if (!matrix || !isUsable(*matrix))
        return Refusal{"the control points make no Helmert system"};
    return tagsOf(*matrix);
}

} // namespace

Expected<Placement> readPlacement(ZrBitmapTagList const& tags, bool pixelIsPoint) {
    auto const scale = doublesOf(tags, tagPixelScale), tie = doublesOf(tags, tagTiePoints),
               matrix = doublesOf(tags, tagTransformation);
    if (!scale || !tie || !matrix)
        return Refusal{scale.reason() + tie.reason() + matrix.reason()};
    if (!areFinite(*scale) || !areFinite(*tie) || !areFinite(*matrix))
        return Refusal{"the pixels' placement is not made of numbers"};
    if (!matrix->empty())
        return readMatrix(*matrix, pixelIsPoint);
    if (!scale->empty())
        return readScale(*scale, *tie, pixelIsPoint);
    if (!tie->empty())
        return readTiePoints(*tie, pixelIsPoint);
    return Placement{};
}

Expected<PlacementTags> writePlacement(GEOREF const& georef) {
    if (georef.Method == TransformMethodNone)
        return PlacementTags{};
    if (georef.Method < 0 || georef.Method > TransformMethodNone)
        return Refusal{"the georeference's method is none"};
    if (georef.Method != TransformMethodPrecalculatedAffineCoefficients)
        return controlsOf(georef);
    Coefficients const c{georef.A, georef.B, georef.C, georef.D, georef.E, georef.F};
    if (!isUsable(c))
        return Refusal{"the georeference's coefficients are not usable"};
    return tagsOf(c);
}

} // namespace ZrProj::GeoTIFF
