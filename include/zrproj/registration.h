// Image registration: smooth maps that meet every one of a set of control points.
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

/// The basis of a warp; s is the mean distance of a control from its nearest neighbour. 6 stands for none.
enum WarpingMethod : std::int32_t {
    WarpingMethodThinPlateSpline = 0,         ///< r^2 ln r (Duchon 1977)
    WarpingMethodNaturalCubicSpline = 1,      ///< r^3
    WarpingMethodMarcovSpline = 2,            ///< (1 + r/s) exp(-r/s)
    WarpingMethodExponentialSpline = 3,       ///< exp(-r/s)
    WarpingMethodRationalQuadraticSpline = 4, ///< 1 / (1 + (r/s)^2)
    /// The affine least-squares map, plus its residuals at the controls weighted by 1/r^2 (Shepard 1968).
    WarpingMethodInverseDistanceSquared = 5,
    WarpingMethodNone = 6,
};

/// A warp fitted to control points. Copies share what was fitted, which never changes: calibrating one of them again
/// leaves the others as they are. Copies may be used on several threads at once, and so may one that is not calibrated
/// meanwhile.
class ZRPROJ_API CImageRegistration {
public:
    /// Not calibrated yet.
    CImageRegistration();
    CImageRegistration(CImageRegistration const& other);
    ~CImageRegistration();
    CImageRegistration& operator=(CImageRegistration const& other);

    /// Fits a warp to `count` pairs of points. The time grows with the cube of the count, the memory with its square:
    /// 2,000 pairs take less than a second and 32 MB. What was fitted before is dropped in any case. False for a null
    /// pointer, a method that is none, fewer than three controls, controls that are marked, not finite, all on one
    /// line, or two of them in one place, controls so close that the equations cannot be solved, and when memory runs
    /// out.
    bool Calibrate(WarpingMethod method, GEOREFPOINT const* source, GEOREFPOINT const* target, int count);

    /// The method calibrated, WarpingMethodNone where there is none.
    WarpingMethod Method() const;

    /// Maps `count` points in place from source to target coordinates. Points that are marked (DBL_MAX in either
    /// coordinate) stay marked, and points whose result is not finite become so; a point's result does not depend on
    /// its place in the array. False, nothing written, when not calibrated, for a null pointer, and for a count
    /// below 1.
    bool Transform(GEOREFPOINT* points, int count) const;

private:
    struct Fitted;
    Fitted* m_fitted = nullptr; // shared, with a use count; null: not calibrated
};

} // namespace ZrProj

#endif
