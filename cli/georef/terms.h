// The terms of the polynomials that control points are fitted by.
#pragma once

#include <zrproj/zrproj.h>

#include <array>
#include <cstddef>
#include <string_view>

namespace ZrProj::Command {

struct GeorefTerm {
    std::string_view name;
    std::size_t i, j; // x^i y^j
};

inline constexpr std::array georefTerms{GeorefTerm{"1", 0, 0},   GeorefTerm{"x", 1, 0},     GeorefTerm{"y", 0, 1},
                                        GeorefTerm{"x^2", 2, 0}, GeorefTerm{"xy", 1, 1},    GeorefTerm{"y^2", 0, 2},
                                        GeorefTerm{"x^3", 3, 0}, GeorefTerm{"x^2 y", 2, 1}, GeorefTerm{"x y^2", 1, 2},
                                        GeorefTerm{"y^3", 0, 3}};

/// Of a least-squares method; a similarity has those of an affine map.
constexpr bool hasTerm(TransformMethod method, GeorefTerm const& term) {
    std::size_t const degree = term.i + term.j;
    switch (method) {
    case TransformMethod1stOrderPolynomial:
        return term.i < 2 && term.j < 2;
    case TransformMethod2ndOrderPolynomial:
        return degree <= 2;
    case TransformMethod3rdOrderPolynomial:
        return true;
    default:
        return degree <= 1;
    }
}

} // namespace ZrProj::Command
