#include "georef/gCoeff.h"

#include <cmath>

namespace ZrProj {

georef::Polynomial coefficientMap(GEOREF const& georef) noexcept {
    return {.terms = 3, .centre = {}, .x = {georef.C, georef.A, georef.B}, .y = {georef.F, georef.D, georef.E}};
}

bool setCoefficients(GEOREF& georef, georef::Polynomial const& map) noexcept {
    auto const atOrigin = [&](double const(&c)[10]) { return c[0] - c[1] * map.centre.x - c[2] * map.centre.y; };
    double const C = atOrigin(map.x), F = atOrigin(map.y);
    if (!std::isfinite(C) || !std::isfinite(F))
        return false;
    georef.A = map.x[1];
    georef.B = map.x[2];
    georef.C = C;
    georef.D = map.y[1];
    georef.E = map.y[2];
    georef.F = F;
    return true;
}

} // namespace ZrProj
