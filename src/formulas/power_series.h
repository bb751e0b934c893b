// Power series in the eccentricity, with as many terms as the flattening asks for.
#pragma once

#include "formulas/elementary.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {

/// c[0] + c[1] x + c[2] x^2 + ..., for x between 0 and 1. No terms: 0.
struct PowerSeries {
    static constexpr int maxTerms = 64;

    int terms = 0;
    double c[maxTerms] = {};

    template <class R> R operator()(R x) const {
        R sum = 0.0;
        for (int k = terms; k-- > 0;)
            sum = sum * x + c[k];
        return sum;
    }
};

/// The series of e artanh(e s) / s in s^2, for flattenings up to 0.3.
PowerSeries eccentricArtanh(double flattening);

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
