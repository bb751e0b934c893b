// The isometric latitude psi of an ellipsoid, in which conformal maps are written, and back.
//
// Source    Snyder (1987), Map Projections: A Working Manual, pp. 15-16, and for the way back pp. 18-19.
// Departs   the way back goes by the series of auxiliary_latitude.h.
// Accuracy  psi to 4e-16 of itself, or of 1 where that is more; the latitude to 6e-16 rad.
#pragma once

#include "formulas/auxiliary_latitude.h"
#include "formulas/outline.h"
#include "formulas/power_series.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {

/// The latitude next to a pole: isometric latitudes end here, since the poles have none.
inline constexpr double nextToPole = 1.5707963267948963;

struct IsometricLatitude {
    PowerSeries flattened;
    AuxiliaryLatitude conformal;
    double last; // of nextToPole

    explicit IsometricLatitude(double flattening)
        : flattened(eccentricArtanh(flattening)), conformal(conformalLatitude(flattening)),
          last(of(sinCos(nextToPole))) {}

    /// psi of a geodetic latitude by its sine and cosine; some 37 at a pole.
    template <class R> R of(SinCos<R> phi) const { return isometric(phi) - phi.sin * flattened(phi.sin * phi.sin); }

    /// The geodetic latitude of psi, never a pole; of `last`, where psi is beyond.
    template <class R> R geodetic(R psi) const {
        R const up = exp(clamped(abs(psi), 0, last)), square = up * up;
        R const scale = 1.0 / (square + 1.0);
        SinCos<R> const chi{(square - 1.0) * scale, 2.0 * up * scale};
        R const phi = conformal.geodetic(atan2(square - 1.0, 2.0 * up), chi);
        return copySign(clamped(phi, 0, nextToPole), psi);
    }
};

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
