#include "georef/gCoeff.h"

namespace ZrProj {

formulas::Polynomial coefficientMap(GEOREF const& georef) noexcept {
    return {.terms = 3, .centre = {}, .x = {georef.C, georef.A, georef.B}, .y = {georef.F, georef.D, georef.E}};
}

void setCoefficients(GEOREF& georef, formulas::Polynomial const& map) noexcept {
    auto const atOrigin = [&](double const(&c)[10]) { return c[0] - c[1] * map.centre.x - c[2] * map.centre.y; };
    georef.A = map.x[1];
    georef.B = map.x[2];
    georef.C = atOrigin(map.x);
    georef.D = map.y[1];
    georef.E = map.y[2];
    georef.F = atOrigin(map.y);
}

} // namespace ZrProj
