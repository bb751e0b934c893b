// The formulas that there are.
#pragma once

#include <cstddef>

namespace ZrProj::formulas {

/// One enumerator for each formula, which is computed in a source of its own; `none` stands behind them all, for what
/// no formula computes.
enum class Method : unsigned char {
    albers,
    azimuthalEquidistant,
    bonne,
    cassini,
    colombiaUrban,
    cylindricalEqualArea,
    eckertIV,
    eckertVI,
    equalEarth,
    equidistantConic,
    equidistantCylindrical,
    gaussSchreiber,
    gnomonic,
    gnomonicEllipsoid,
    guam,
    hotine,
    hyperbolicCassini,
    krovak,
    krovakModified,
    laborde,
    lambertAzimuthal,
    lambertConformalConic,
    lambertNearConformal,
    mercator,
    miller,
    mollweide,
    newZealandMapGrid,
    obliqueMercator,
    obliqueStereographic,
    orthographic,
    polyconic,
    robinson,
    robinsonSterling,
    sinusoidal,
    stereographic,
    transverseMercator,
    transverseMercatorExact,
    transverseMercatorZoned,
    tunisiaMiningGrid,
    vanDerGrinten,
    none
};

inline constexpr std::size_t methodCount = static_cast<std::size_t>(Method::none);

} // namespace ZrProj::formulas
