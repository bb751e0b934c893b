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
    eckertIV,
    eckertVI,
    equidistantConic,
    equidistantCylindrical,
    gnomonic,
    hotine,
    lambertAzimuthal,
    lambertConformalConic,
    mercator,
    miller,
    mollweide,
    obliqueMercator,
    orthographic,
    polyconic,
    robinson,
    robinsonSterling,
    sinusoidal,
    stereographic,
    transverseMercator,
    vanDerGrinten,
    none
};

inline constexpr std::size_t methodCount = static_cast<std::size_t>(Method::none);

} // namespace ZrProj::formulas
