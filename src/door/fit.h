// What a map through control points is.
#pragma once

#include "door/points.h"
#include "georef/fit.h"

struct zrproj_fit {
    int method = 0;
    std::vector<ZrProj::GEOREFPOINT> source, target; // none with coefficients
    std::optional<ZrProj::GeorefMap> map;            // there once the fit is made
    std::vector<ZrProj::Coefficient> coefficients;

    ZrProj::Controls controls() const { return {source, target}; }
};

namespace ZrProj::Door {

/// The map of six coefficients.
georef::Polynomial affineMap(std::span<double const, 6> coefficients);

/// `count` pairs of a caller's array.
std::vector<GEOREFPOINT> pairsOf(double const* pairs, std::size_t count);

/// Fits control points in an empty handle.
Answer makeFit(zrproj_fit& fit, int method, std::vector<GEOREFPOINT> source, std::vector<GEOREFPOINT> target);
Answer makeFit(zrproj_fit& fit, std::span<double const, 6> coefficients);

/// Whether the arrays of a caller's control points are there.
Answer checkPairs(double const* source, double const* target, std::size_t count);

} // namespace ZrProj::Door
