// Georeference systems: fitted, applied, and held against their controls.
#include "frame/errors.h"
#include "georef/controls.h"
#include "georef/gCoeff.h"
#include "georef/gHelmert.h"
#include "georef/gOrder3.h"
#include "georef/handle.h"
#include "georef/method_table.h"
#include "host/fpenv.h"

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <exception>
#include <memory>

namespace ZrProj {
namespace {

/// Reports a failed assertion with the line of the call. Always returns false, so that a caller can return it.
bool inconsistent(int line = __builtin_LINE()) noexcept {
    return AssertFailed(".\\zrGeoRef.cpp", line);
}

bool fitWarp(GeorefBlock& block, Controls const& controls) {
    auto const warp = static_cast<WarpingMethod>(block.record.Method - TransformMethodThinPlateSpline);
    return block.registration.Calibrate(warp, controls.source.data(), controls.target.data(),
                                        static_cast<int>(controls.size())) &&
           (block.registration.Method() == warp || inconsistent());
}

bool fit(GeorefBlock& block) {
    Controls const controls{block.source, block.target};
    if (block.record.Method == TransformMethodPrecalculatedAffineCoefficients) {
        block.polynomial = coefficientMap(block.record);
        return true;
    }
    if (!isGeorefMethod(block.record.Method) || !areFinite(controls))
        return inconsistent();
    if (isWarp(block.record.Method))
        return fitWarp(block, controls);
    if (block.record.Method == TransformMethodHelmert) {
        block.polynomial = fitHelmert(controls);
        return true;
    }
    auto const map = fitPolynomial(georefMethodRow(block.record.Method).terms, controls);
    if (map)
        block.polynomial = *map;
    return map.has_value();
}

/// Copies the record and its controls into the block. A count below 1 means no controls.
void takeRecord(GeorefBlock& block, GEOREF const& georef) {
    auto const count = static_cast<std::size_t>(std::max(georef.nControls, 0));
    block.record = georef;
    if (count > 0) {
        block.source.assign(georef.pSource, georef.pSource + count);
        block.target.assign(georef.pTarget, georef.pTarget + count);
    }
    block.record.pSource = count > 0 ? block.source.data() : nullptr;
    block.record.pTarget = count > 0 ? block.target.data() : nullptr;
    block.record.nControls = static_cast<std::int32_t>(count);
}

/// A block with its method fitted to its controls; null where that fails. Throws when memory runs out.
std::unique_ptr<GeorefBlock> fittedBlock(GEOREF const& georef) {
    auto block = std::make_unique<GeorefBlock>();
    takeRecord(*block, georef);
    if (!fit(*block))
        return nullptr;
    return block;
}

void map(GeorefBlock const& block, std::span<GEOREFPOINT> points) {
    if (isWarp(block.record.Method))
        block.registration.Transform(points.data(), static_cast<int>(points.size()));
    else
        georef::kernels().mapByPolynomial(block.polynomial, levels::pointsOf(points.data(), points.size()));
}

/// The number as callers are given it: DBL_MAX where it is infinite or NaN.
double marked(double value) {
    return std::isfinite(value) ? value : DBL_MAX;
}

/// Computes the residuals' lengths and their mean into whichever output is not null. Throws when memory runs out.
void computeError(GeorefBlock const& block, double* meanError, double* pointErrors) {
    auto mapped = block.source;
    map(block, mapped);
    double sum = 0;
    for (std::size_t i = 0; i < mapped.size(); ++i) {
        bool const stands = mapped[i].x != DBL_MAX;
        double const distance =
            stands ? std::hypot(mapped[i].x - block.target[i].x, mapped[i].y - block.target[i].y) : HUGE_VAL;
        sum += distance;
        if (pointErrors)
            pointErrors[i] = marked(distance);
    }
    if (meanError)
        *meanError = marked(sum / static_cast<double>(mapped.size()));
}

} // namespace

void* RefCreateSystem(GEOREF const* georef) {
    if (!georef)
        return nullptr;
    if (georef->nControls > 0 && (!georef->pSource || !georef->pTarget)) {
        inconsistent();
        return nullptr;
    }
    try {
        auto block = withDefaultFloatingPoint([&] { return fittedBlock(*georef); });
        return block ? &block.release()->record : nullptr;
    } catch (std::exception const&) { // no memory, or no array so long
        inconsistent();
        return nullptr;
    }
}

void RefDeleteSystem(void* system) {
    if (!system)
        return;
    auto& block = GeorefBlock::of(system);
    if (block.owners.fetch_sub(1, std::memory_order_acq_rel) == 1)
        std::unique_ptr<GeorefBlock>{&block}.reset();
}

bool RefForward(void* system, GEOREFPOINT* points, int count) {
    if (!system)
        return false;
    if (!points || count < 1)
        return inconsistent();
    FloatingPointScope const scope;
    map(GeorefBlock::of(system), {points, static_cast<std::size_t>(count)});
    return true;
}

bool RefComputeError(void* system, double* meanError, double* pointErrors) {
    if (!system)
        return false;
    auto const& block = GeorefBlock::of(system);
    if (block.record.Method == TransformMethodPrecalculatedAffineCoefficients || block.source.empty())
        return inconsistent();
    try {
        withDefaultFloatingPoint([&] {
            computeError(block, meanError, pointErrors);
            return true;
        });
    } catch (std::exception const&) { // no memory, or no array so long
        return inconsistent();
    }
    return true;
}

bool RefGetHandleInfo(void* system, GEOREF* georef) {
    if (!system || !georef)
        return false;
    *georef = GeorefBlock::of(system).record;
    return true;
}

char* RefMethodName(TransformMethod method) {
    char const* const name = isGeorefMethod(method) ? georefMethodRow(method).name : "";
    return const_cast<char*>(name); // the interface says so; nobody is to write to it
}

} // namespace ZrProj
