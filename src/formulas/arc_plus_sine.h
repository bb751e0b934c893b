// The equation u + sin u = w, which Mollweide's and Eckert's sixth projection share.
#pragma once

#include "formulas/elementary.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {

/// An angle between -pi and pi, and rest = pi - |angle| with all its digits.
template <class R> struct Arc { R angle, rest; };

/// u of w = u + sin u between -pi and pi; `gap` is pi - |w|. 3e-16 of u and of its rest.
template <class R> Arc<R> solveArcPlusSine(R w, R gap) {
    // Up to 1.6, u / w = 0.5 + w^2 (...); beyond, with g^3 = 6 gap, rest / g = 1 + g^2 (...). Chebyshev fits of our
    // own.
    constexpr double middle[] = {0.010416666666666878,   0.0005208333333279709,  3.33271329898295e-05,
                                 2.400500578436559e-06,  1.8539318169279218e-07, 1.4990593035161828e-08,
                                 1.2549268518615676e-09, 1.0512377109440538e-10, 1.0732559920274432e-11,
                                 2.1320337426686137e-13, 2.5839505329526265e-13, -2.7357649551900184e-14,
                                 3.842381288405789e-15};
    constexpr double end[] = {
        0.016666666666666212,    0.0007142857142955622,  3.968253959810889e-05,  2.4930430515103675e-06,
        1.6830288456242117e-07,  1.1913515971760778e-08, 8.693995341012557e-10,  6.74211105441188e-11,
        3.691829617018392e-12,   1.01384067740698e-12,   -1.900774049366227e-13, 5.938129311395406e-14,
        -1.0312568930936363e-14, 1.3374697967687023e-15, -1.017480898392618e-16, 4.0007686437266755e-18};
    R const g = cbrt(6.0 * gap);
    R const angle = 0.5 * w + w * (w * w * polynomial(w * w, middle)), rest = g + g * (g * g * polynomial(g * g, end));
    auto const inMiddle = abs(w) < 1.6;
    return {select(inMiddle, angle, copySign(pi - rest, w)), select(inMiddle, pi - abs(angle), rest)};
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
