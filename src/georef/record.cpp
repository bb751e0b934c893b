// What is done to a georeference record itself: its arrays, and the ways between controls and coefficients.
#include "georef/controls.h"
#include "georef/gCoeff.h"
#include "georef/gOrder3.h"
#include "host/fpenv.h"

#include <cstdlib>
#include <exception>

namespace ZrProj {
namespace {

// The arrays are plain memory: a record crosses between modules that were built apart.
GEOREFPOINT* zeroedPoints(int count) noexcept {
    return static_cast<GEOREFPOINT*>(std::calloc(static_cast<std::size_t>(count), sizeof(GEOREFPOINT)));
}

bool hasControls(GEOREF const& georef) noexcept {
    return georef.pSource && georef.pTarget;
}

/// Scales the source coordinates: the controls, and the coefficients that are applied to them.
void scaleSource(GEOREF& georef, double sx, double sy) noexcept {
    for (std::int32_t i = 0; i < georef.nControls; ++i) {
        georef.pSource[i].x *= sx;
        georef.pSource[i].y *= sy;
    }
    if (georef.Method == TransformMethodPrecalculatedAffineCoefficients) {
        georef.A /= sx;
        georef.B /= sy;
        georef.D /= sx;
        georef.E /= sy;
    }
}

/// Fits affine coefficients to the record's controls. Throws when memory runs out.
bool fitCoefficients(GEOREF& georef) {
    auto const count = static_cast<std::size_t>(georef.nControls);
    Controls const controls{{georef.pSource, count}, {georef.pTarget, count}};
    if (!areFinite(controls))
        return false;
    auto const map = fitPolynomial(3, controls);
    return map && setCoefficients(georef, *map);
}

} // namespace

bool RefAllocControls(GEOREF* georef, int count) {
    if (!georef)
        return false;
    georef->nControls = 0;
    georef->pSource = georef->pTarget = nullptr;
    if (count < 1)
        return false;
    georef->pSource = zeroedPoints(count);
    georef->pTarget = georef->pSource ? zeroedPoints(count) : nullptr;
    if (!georef->pTarget) {
        RefFreeControls(georef);
        return false;
    }
    georef->nControls = count;
    return true;
}

void RefFreeControls(GEOREF* georef) {
    if (!georef)
        return;
    std::free(georef->pSource);
    std::free(georef->pTarget);
    georef->pSource = georef->pTarget = nullptr;
    georef->nControls = 0;
}

bool RefCoeffToControls(GEOREF* georef, int width, int height) {
    if (!georef || georef->Method != TransformMethodPrecalculatedAffineCoefficients || !RefAllocControls(georef, 4))
        return false;
    double const right = width < 1 ? 100 : width, bottom = height < 1 ? 100 : height;
    GEOREFPOINT const corners[] = {{0, 0}, {right, 0}, {right, bottom}, {0, bottom}};
    FloatingPointScope const scope;
    for (int i = 0; i < 4; ++i)
        georef->pSource[i] = georef->pTarget[i] = corners[i];
    georef::kernels().mapByPolynomial(coefficientMap(*georef), levels::pointsOf(georef->pTarget, 4));
    georef->Method = TransformMethodAffinePolynomial;
    return true;
}

bool RefControlsToCoeff(GEOREF* georef) {
    if (!georef || georef->Method == TransformMethodPrecalculatedAffineCoefficients ||
        georef->Method == TransformMethodNone || georef->nControls < 3 || !hasControls(*georef))
        return false;
    try {
        if (!withDefaultFloatingPoint([&] { return fitCoefficients(*georef); }))
            return false;
    } catch (std::exception const&) { // no memory, or no array so long
        return false;
    }
    georef->Method = TransformMethodPrecalculatedAffineCoefficients;
    return true;
}

bool RefResize(GEOREF* georef, int oldWidth, int oldHeight, int newWidth, int newHeight) {
    if (!georef || oldWidth < 1 || oldHeight < 1 || newWidth < 1 || newHeight < 1)
        return false;
    if (georef->nControls > 0 && !georef->pSource) {
        if (georef->Method != TransformMethodPrecalculatedAffineCoefficients)
            return false;
        georef->nControls = 0;
    }
    return withDefaultFloatingPoint([&] {
        scaleSource(*georef, static_cast<double>(newWidth) / oldWidth, static_cast<double>(newHeight) / oldHeight);
        return true;
    });
}

} // namespace ZrProj
