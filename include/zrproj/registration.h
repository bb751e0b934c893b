// Image registration: smooth maps that meet every one of a set of control points.
//
//     ZrProj::CImageRegistration warp;
//     if (warp.Calibrate(ZrProj::WarpingMethodThinPlateSpline, pixels, ground, count))
//         warp.Transform(points, pointCount);
//
// X and Y are each an affine part plus a sum over the controls of weight times basis(r), r the distance from the
// control in source coordinates. The weights are orthogonal to 1, x and y, so that an affine map is reproduced as it
// is.
#ifndef ZRPROJ_REGISTRATION_H
#define ZRPROJ_REGISTRATION_H

#include "api.h"
#include "georef.h"

#include <cstdint>

namespace ZrProj {

/// The basis of a warp, 0 to 5: how far and how smoothly a control's residual from the affine part reaches. In the
/// formulas s is the mean distance of a control from its nearest neighbour.
enum WarpingMethod : std::int32_t {
    WarpingMethodThinPlateSpline = 0,         ///< r^2 ln r, the map with the least bending (Duchon 1977)
    WarpingMethodNaturalCubicSpline = 1,      ///< r^3, smoother, and swings more beyond the controls
    WarpingMethodMarcovSpline = 2,            ///< (1 + r/s) exp(-r/s), affine far away from the controls
    WarpingMethodExponentialSpline = 3,       ///< exp(-r/s), affine far away, with a kink at each control
    WarpingMethodRationalQuadraticSpline = 4, ///< 1 / (1 + (r/s)^2), affine far away
    /// The affine least-squares map, plus its residuals at the controls weighted by 1/r^2 (Shepard 1968).
    WarpingMethodInverseDistanceSquared = 5,
    WarpingMethodNone = 6, ///< no method; what an object that is not calibrated has
};

/// A warp fitted to control points. Copies share what was fitted, which never changes: calibrating one of them again
/// leaves the others as they are. Copies may be used on several threads at once, and so may one object that is not
/// calibrated meanwhile.
class ZRPROJ_API CImageRegistration {
public:
    /// Is not calibrated yet.
    CImageRegistration();
    /// Shares what the source has fitted.
    CImageRegistration(CImageRegistration const& other);
    /// Frees what was fitted when no copy shares it.
    ~CImageRegistration();
    /// Drops what was fitted here and shares what the source has fitted. Self-assignment is harmless.
    CImageRegistration& operator=(CImageRegistration const& other);

    /// Fits a warp to `count` pairs of points, `source[i]` in source and `target[i]` in target coordinates. The time
    /// grows with the cube of the count, the memory with its square: 2,000 pairs take less than a second and 32 MB.
    ///
    /// What was fitted before is dropped in any case. Returns false for a null pointer, a method that is none, fewer
    /// than three controls, controls that are marked, not finite, collinear or coincident (any two of them), controls
    /// so close that the equations cannot be solved, and when memory runs out.
    bool Calibrate(WarpingMethod method, GEOREFPOINT const* source, GEOREFPOINT const* target, int count);

    /// Tells the method calibrated, WarpingMethodNone where there is none.
    WarpingMethod Method() const;

    /// Maps `count` points in place from source to target coordinates.
    ///
    /// Points that are marked (DBL_MAX in either coordinate) stay marked, and points whose result is not finite become
    /// so. A point's result has the same bits wherever in an array it stands. Returns false, with the points untouched,
    /// when nothing is calibrated, for a null pointer, and for a count below 1.
    bool Transform(GEOREFPOINT* points, int count) const;

private:
    struct Fitted;
    Fitted* m_fitted = nullptr; // shared, with a use count; null: not calibrated
};

} // namespace ZrProj

#endif
