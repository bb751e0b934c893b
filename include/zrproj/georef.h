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
//
// Coordinates are of any unit and of any size; nothing is assumed of which way an axis points. A system is one thread's
// at a time; distinct systems may be used at once.
#ifndef ZRPROJ_GEOREF_H
#define ZRPROJ_GEOREF_H

#include "api.h"

#include <cstdint>

namespace ZrProj {

/// How a georeference system maps, 0 to 11. Each line says the least number of control points, here called controls.
/// Methods 0 to 4 are fitted by least squares; methods 6 to 11 meet every control and are those of CImageRegistration.
enum TransformMethod : std::int32_t {
    TransformMethodHelmert = 0,                         ///< similarity: shift, rotation and scale; 2 controls
    TransformMethodAffinePolynomial = 1,                ///< terms 1, x, y; 3 controls
    TransformMethod1stOrderPolynomial = 2,              ///< terms 1, x, y, xy; 4 controls
    TransformMethod2ndOrderPolynomial = 3,              ///< all terms to the second order; 6 controls
    TransformMethod3rdOrderPolynomial = 4,              ///< all terms to the third order; 10 controls
    TransformMethodPrecalculatedAffineCoefficients = 5, ///< the record's A to F; no controls
    TransformMethodThinPlateSpline = 6,                 ///< WarpingMethodThinPlateSpline; 3 controls
    TransformMethodNaturalCubicSpline = 7,              ///< WarpingMethodNaturalCubicSpline; 3 controls
    TransformMethodMarcovSpline = 8,                    ///< WarpingMethodMarcovSpline; 3 controls
    TransformMethodExponentialSpline = 9,               ///< WarpingMethodExponentialSpline; 3 controls
    TransformMethodRationalQuadraticSpline = 10,        ///< WarpingMethodRationalQuadraticSpline; 3 controls
    TransformMethodInverseDistanceSquared = 11,         ///< WarpingMethodInverseDistanceSquared; 3 controls
    TransformMethodNone = 12,                           ///< no method; no system can be made
};

/// A point in source or in target coordinates. Both coordinates hold DBL_MAX where a point cannot be mapped; such a
/// point is called marked.
struct GEOREFPOINT {
    double x, y;
};

/// A georeference. The control arrays belong to whoever owns the record; RefAllocControls and RefFreeControls manage
/// them, and a copy of the record shares them. Zero the whole record, then set what the method uses.
struct GEOREF {
    TransformMethod Method;      ///< what the record describes
    GEOREFPOINT* pSource;        ///< the controls in source coordinates; null where there are none
    GEOREFPOINT* pTarget;        ///< the same points in target coordinates; null where there are none
    std::int32_t nControls;      ///< the length of both arrays; below 1 there are no controls
    double A, B, C, D, E, F;     ///< X = A x + B y + C and Y = D x + E y + F, for precalculated coefficients
    unsigned char Reserved[208]; ///< zero; carried along unchanged
};

/// Fits the record's method to its controls and makes a system that maps points. The record's arrays are copied and may
/// be changed or freed afterwards.
///
/// Polynomials need as many controls as they have terms, and are solved exactly with that many, by least squares with
/// more. Fits are made in centred and scaled coordinates, so that they keep their digits however large the coordinates
/// are. A Helmert fit through coincident points has no scale: the system is created and marks whatever it maps. So does
/// one with fewer than two controls, which is reported as error 20200 besides.
///
/// Returns null for a null record; for a count of controls with a null array; for a method that is none; for too few
/// controls; for controls that are marked, not finite or do not determine the method's terms, being collinear or
/// coincident; and when memory runs out. Delete the system with RefDeleteSystem.
ZRPROJ_API void* RefCreateSystem(GEOREF const* georef);

/// Lets go of a system; its memory is freed with the last CGeorefTransform that shares it. Null is ignored.
ZRPROJ_API void RefDeleteSystem(void* system);

/// Gives the record two zeroed arrays of `count` points. Arrays that it had before are not freed.
///
/// Returns false for a null record, and false, with null arrays and a count of 0, for a count below 1 and when memory
/// runs out. Free the arrays with RefFreeControls.
ZRPROJ_API bool RefAllocControls(GEOREF* georef, int count);

/// Frees the arrays that RefAllocControls made, and sets them to null and the count to 0. A null record is ignored.
ZRPROJ_API void RefFreeControls(GEOREF* georef);

/// Maps `count` points in place from source to target coordinates.
///
/// Marked points stay marked, and points whose result is not finite become so. A point's result has the same bits
/// wherever in an array it stands. Returns false, with the points untouched, for a null pointer and a count below 1.
ZRPROJ_API bool RefForward(void* system, GEOREFPOINT* points, int count);

/// Measures the fit's residuals: the distance of each mapped source control from its target goes to `pointErrors`,
/// which has room for as many numbers as there are controls, and their arithmetic mean to `meanError`. Either may be
/// null. Distances are in target units; DBL_MAX stands for one that is not finite.
///
/// Returns false, with nothing written, for a null system, a system of precalculated coefficients, one without
/// controls, and when memory runs out.
ZRPROJ_API bool RefComputeError(void* system, double* meanError, double* pointErrors);

/// Copies the system's record to `georef`. Its arrays are the system's own: they are not to be changed or freed, and
/// are gone with the system. Returns false, with nothing written, when either pointer is null.
ZRPROJ_API bool RefGetHandleInfo(void* system, GEOREF* georef);

/// Turns precalculated coefficients into an affine method with four controls: the corners (0, 0), (width, 0),
/// (width, height), (0, height) of an image, and where the coefficients map them.
///
/// `width` and `height` are in source units; one below 1 counts as 100. The arrays come from RefAllocControls; arrays
/// that the record had are not freed. Returns false, with the record untouched, for a null record and another method,
/// and false, without controls, when memory runs out.
ZRPROJ_API bool RefCoeffToControls(GEOREF* georef, int width, int height);

/// Fits affine coefficients to the record's controls, whatever its method, and makes precalculated coefficients the
/// method. The arrays stay as they are.
///
/// Returns false, with the record unchanged, for a null record or array, methods 5 and 12, fewer than three controls,
/// controls that no affine map can be fitted to, and when memory runs out.
ZRPROJ_API bool RefControlsToCoeff(GEOREF* georef);

/// Adapts the record to an image resized from the old to the new size (pixels, each at least 1): scales the source
/// controls, and the coefficients where these are the method.
///
/// Precalculated coefficients need no controls: those that such a record has are kept and scaled with it, and a count
/// without source controls becomes 0. Returns false, with the record unchanged, for a null record, a size below 1, and,
/// with another method, a count without source controls.
ZRPROJ_API bool RefResize(GEOREF* georef, int oldWidth, int oldHeight, int newWidth, int newHeight);

/// Gives a method's name, "" for a number that is no method. The text is static and not to be changed.
ZRPROJ_API char* RefMethodName(TransformMethod method);

/// Owns a georeference system. A member that forwards takes and returns what the function that it names does, and
/// returns false while no system is owned. Copying makes a system of its own from the source's record; assignment
/// shares the source's system.
class ZRPROJ_API CGeorefTransform {
public:
    /// Owns no system yet.
    CGeorefTransform();
    /// Makes a system as Create does. IsCreated tells whether there is one.
    explicit CGeorefTransform(GEOREF const* georef);
    /// Fits a system of its own to the source's record. Owns none where the source does not, or where memory runs out.
    CGeorefTransform(CGeorefTransform const& other);
    /// Lets go of the system.
    virtual ~CGeorefTransform();
    /// Lets go of the present system and shares the source's. Self-assignment is harmless.
    CGeorefTransform& operator=(CGeorefTransform const& other);

    /// Makes a new system by RefCreateSystem and lets go of the present one, whose record `georef` may be. Returns
    /// false when that fails; no system is then owned.
    bool Create(GEOREF const* georef);
    /// Lets go of the system; RefDeleteSystem.
    void Delete();
    /// Tells whether a system is owned.
    bool IsCreated() const;
    /// Maps points in place from source to target coordinates; RefForward.
    bool Forward(GEOREFPOINT* points, int count);
    /// Measures the fit's residuals; RefComputeError.
    bool ComputeError(double* meanError, double* pointErrors);
    /// Copies the system's record, whose arrays stay the system's own; RefGetHandleInfo.
    bool GetInfo(GEOREF* georef);

private:
    void* m_handle; // null: no system is owned
};

} // namespace ZrProj

#endif
