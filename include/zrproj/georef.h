// Georeference systems: planar source coordinates, an image's pixels say, to target coordinates, a map's, by control
// points or by six known coefficients.
//
//     ZrProj::GEOREFPOINT pixels[] = {{120, 88}, {3950, 91}, {3944, 2870}, {117, 2866}};
//     ZrProj::GEOREFPOINT ground[] = {{499250, 4771210}, {501165, 4771208}, {501162, 4769819}, {499249, 4769821}};
//     ZrProj::GEOREF georef = {};
//     georef.Method = ZrProj::TransformMethodAffinePolynomial;
//     georef.pSource = pixels;
//     georef.pTarget = ground;
//     georef.nControls = 4;
//     ZrProj::CGeorefTransform transform(&georef);
//     ZrProj::GEOREFPOINT p = {2000, 1500};
//     transform.Forward(&p, 1);                // easting, northing
#ifndef ZRPROJ_GEOREF_H
#define ZRPROJ_GEOREF_H

#include "api.h"

#include <cstdint>

namespace ZrProj {

/// How a georeference system maps, 0 to 11. 12 stands for none.
enum TransformMethod : std::int32_t {
    TransformMethodHelmert = 0,                         ///< four-parameter similarity, least squares; 2 controls
    TransformMethodAffinePolynomial = 1,                ///< terms 1, x, y; 3 controls
    TransformMethod1stOrderPolynomial = 2,              ///< terms 1, x, y, xy; 4 controls
    TransformMethod2ndOrderPolynomial = 3,              ///< all terms to the second order; 6 controls
    TransformMethod3rdOrderPolynomial = 4,              ///< all terms to the third order; 10 controls
    TransformMethodPrecalculatedAffineCoefficients = 5, ///< the record's A to F; no controls
    TransformMethodThinPlateSpline = 6,                 ///< this and those below: CImageRegistration; 3 controls
    TransformMethodNaturalCubicSpline = 7,
    TransformMethodMarcovSpline = 8,
    TransformMethodExponentialSpline = 9,
    TransformMethodRationalQuadraticSpline = 10,
    TransformMethodInverseDistanceSquared = 11,
    TransformMethodNone = 12,
};

/// A point in source or in target coordinates. Both hold DBL_MAX where a point cannot be mapped.
struct GEOREFPOINT {
    double x, y;
};

/// A georeference. The control arrays belong to whoever owns the record; RefAllocControls and RefFreeControls manage
/// them, and a copy of the record shares them.
struct GEOREF {
    TransformMethod Method;
    GEOREFPOINT* pSource;        ///< control points in source coordinates
    GEOREFPOINT* pTarget;        ///< the same points in target coordinates
    std::int32_t nControls;      ///< the length of both arrays
    double A, B, C, D, E, F;     ///< X = A x + B y + C and Y = D x + E y + F, for precalculated coefficients
    unsigned char Reserved[208]; ///< zero; carried along unchanged
};

/// Fits the record's method to its controls. The record's arrays are copied and may be changed or freed afterwards.
///
/// Polynomials need as many controls as they have terms, and are solved exactly with that many, by least squares with
/// more. Fits are made in centred and scaled coordinates, so that they keep their digits however large the coordinates
/// are. A Helmert fit through points that are all in one place has no scale: the system is created, and marks whatever
/// it maps; so has one with fewer than two controls, which raises an assertion besides.
///
/// Null for a null record, a count with a null array, a method that is none, too few controls, controls that are
/// marked, not finite or do not determine the method's terms (on one line, or two in one place), and when memory runs
/// out. Delete the system with RefDeleteSystem.
ZRPROJ_API void* RefCreateSystem(GEOREF const* georef);

/// Lets go of a system; its memory is freed with the last CGeorefTransform that shares it. Null is ignored.
ZRPROJ_API void RefDeleteSystem(void* system);

/// Gives the record two zeroed arrays of `count` points, whatever arrays it had before (they are not freed). False,
/// with a count of 0 and null arrays, for a count below 1 and when memory runs out; false for a null record.
ZRPROJ_API bool RefAllocControls(GEOREF* georef, int count);

/// Frees the arrays that RefAllocControls made, and sets them to null and the count to 0. A null record is ignored.
ZRPROJ_API void RefFreeControls(GEOREF* georef);

/// Maps `count` points in place. Points that are marked stay marked, and points whose result is not finite become so; a
/// point's result does not depend on its place in the array. False for a null pointer and a count below 1.
ZRPROJ_API bool RefForward(void* system, GEOREFPOINT* points, int count);

/// How far the controls are missed: the distance of each mapped source control from its target goes to `pointErrors`
/// (as many as there are controls), their arithmetic mean to `meanError`; either may be null. DBL_MAX stands for a
/// distance that is not finite. False, nothing written, for a null system, one of precalculated coefficients, one
/// without controls, and when memory runs out.
ZRPROJ_API bool RefComputeError(void* system, double* meanError, double* pointErrors);

/// Copies the system's record to `georef`. Its arrays are the system's own: not to be changed or freed, and gone with
/// the system. False when either is null.
ZRPROJ_API bool RefGetHandleInfo(void* system, GEOREF* georef);

/// Turns precalculated coefficients into an affine method with four controls: the corners (0, 0), (width, 0),
/// (width, height), (0, height), and where the coefficients map them. A width or height below 1 counts as 100. The
/// arrays come from RefAllocControls; arrays that the record had are not freed. False for a null record, another
/// method, and when memory runs out.
ZRPROJ_API bool RefCoeffToControls(GEOREF* georef, int width, int height);

/// Fits affine coefficients to the record's controls, whatever its method, and makes precalculated coefficients the
/// method. The arrays stay as they are. False, the record unchanged, for methods 5 and 12, fewer than three controls, a
/// null array or record, and controls that no affine map can be fitted to.
ZRPROJ_API bool RefControlsToCoeff(GEOREF* georef);

/// Adapts the record to an image resized from the old to the new size (pixels, each at least 1): scales the source
/// controls, and the coefficients where these are the method. Precalculated coefficients need no controls: those that
/// such a record has are kept and scaled with it, and a count without source controls becomes 0. False, the record
/// unchanged, for a null record, a size below 1, and with another method a count without source controls.
ZRPROJ_API bool RefResize(GEOREF* georef, int oldWidth, int oldHeight, int newWidth, int newHeight);

/// A method's name, "" for a number that is no method. Static text, not to be changed.
ZRPROJ_API char* RefMethodName(TransformMethod method);

/// Owns a georeference system, and forwards to the function of the like name. Copying makes a system of its own from
/// the source's record; assignment shares the source's system.
class ZRPROJ_API CGeorefTransform {
public:
    CGeorefTransform();
    explicit CGeorefTransform(GEOREF const* georef);
    CGeorefTransform(CGeorefTransform const& other);
    virtual ~CGeorefTransform();
    CGeorefTransform& operator=(CGeorefTransform const& other);

    /// Lets go of the present system and makes a new one; false when that fails.
    bool Create(GEOREF const* georef);
    void Delete();
    bool IsCreated() const;
    bool Forward(GEOREFPOINT* points, int count);
    bool ComputeError(double* meanError, double* pointErrors);
    bool GetInfo(GEOREF* georef);

private:
    void* m_handle;
};

} // namespace ZrProj

#endif
