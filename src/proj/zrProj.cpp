// Projection handles and the conversion of points through them.
#include "frame/errors.h"
#include "frame/log.h"
#include "host/fpenv.h"
#include "proj/handle.h"
#include "proj/projection_table.h"
#include "proj/record.h"

#include <cfloat>
#include <cmath>
#include <memory>
#include <new>
#include <span>

namespace ZrProj {
namespace {

/// Reports a failed assertion with the line of the call. Always returns false, so that a caller can return it.
bool inconsistent(int line = __builtin_LINE()) noexcept {
    return AssertFailed(".\\zrProj.cpp", line);
}

bool isStatePlane(ProjType type) {
    return type == ProjTypeStatePlane1927 || type == ProjTypeStatePlane1983;
}

/// Completes radius and flattening from the catalogue, or checks the caller's own. Returns false for a record without
/// an ellipsoid.
bool completeEllipsoid(PROJDATA& data) noexcept {
    if (data.Ellipsoid < 0 || data.Ellipsoid >= EllipsoidTypeNone) {
        LogPrintf("Bad ellipsoid type!\n");
        return inconsistent();
    }
    if (data.Ellipsoid != EllipsoidTypeUserDefined) {
        data.MajorRadius = EllipsoidRadius(data.Ellipsoid);
        data.Flattening = EllipsoidFlattening(data.Ellipsoid);
        return true;
    }
    LogPrintf("Have user-defined ellipsoid.\n");
    if (!withDefaultFloatingPoint([&] { return data.MajorRadius > 0; })) {
        LogPrintf("Bad ellipsoid radius!\n");
        return inconsistent();
    }
    if (!withDefaultFloatingPoint([&] { return data.Flattening >= 0 && data.Flattening < 1; })) {
        LogPrintf("Bad ellipsoid flattening!\n");
        return inconsistent();
    }
    return true;
}

void completeUtm(PROJDATA& data) noexcept {
    data.xOrg = 500000;
    data.yOrg = flagByte<&PROJDATA::bSouth>(data) ? 10000000 : 0;
    if (data.K0 == 0)
        data.K0 = 0.9996;
}

void completeScales(PROJDATA& record) noexcept {
    if (record.Scale == 0) {
        LogPrintf("Warning:  Scale was zero.  Setting to one.\n");
        record.Scale = 1;
    }
    if (record.K0 == 0) {
        LogPrintf("Warning:  K0 was zero.  Setting to one.\n");
        record.K0 = 1;
    }
}

/// Works out what conversions through the block's record need. A State Plane record becomes its zone's projection: with
/// the record's other fields for conversions, without them for the tests.
void prepare(ProjectionBlock& block) noexcept {
    PROJDATA work = block.record;
    PROJDATA area = block.record;
    if (isStatePlane(work.Type)) {
        ProjGetStateZoneParams(&work);
        area = PROJDATA{};
        area.Type = block.record.Type;
        area.Zone = block.record.Zone;
        ProjGetStateZoneParams(&area);
    }
    block.area = parametersOf(area);
    block.formula = formulas::formulaOf(methodOf(work.Type));
    if (block.formula) {
        block.converter.xOrg = work.xOrg;
        block.converter.yOrg = work.yOrg;
        block.converter.scale = work.Scale;
        block.converter.fullTurn = std::fabs(work.Lon0) == 180 ? std::nextafter(360, 0) : 360;
        block.formula->prepare(block.converter, inRadians(parametersOf(work)));
    }
}

/// What is left of a conversion that computes nothing: marks infinite and NaN points.
bool markNotFinite(std::span<PROJPOINT> points) noexcept {
    bool marked = false;
    for (auto& point : points) {
        if (std::isfinite(point.x) && std::isfinite(point.y))
            continue;
        point = {DBL_MAX, DBL_MAX};
        marked = true;
    }
    return marked;
}

/// The conversion of a record that defines no map.
levels::Outcome markAll(std::span<PROJPOINT> points) noexcept {
    levels::Outcome outcome;
    for (auto& point : points) {
        bool const marked =
            (point.x == DBL_MAX && std::isfinite(point.y)) || (point.y == DBL_MAX && std::isfinite(point.x));
        if (marked)
            continue;
        point = {DBL_MAX, DBL_MAX};
        outcome.lost = true;
    }
    return outcome;
}

struct Direction {
    formulas::Converter::Direction code;
    char const* failure;
};
constexpr Direction forward{&formulas::Converter::forward, "Forward projection function failed!\n"};
constexpr Direction inverse{&formulas::Converter::inverse, "Inverse projection function failed!\n"};

/// A handle whose type computes nothing: unprojected, undefined, or without a formula.
bool convertNothing(PROJDATA& record, std::span<PROJPOINT> points) noexcept {
    record.iResult = withDefaultFloatingPoint([&] { return markNotFinite(points); }) ? 1 : 0;
    return record.Type == ProjTypeUnprojectedLatLong || inconsistent();
}

bool convert(void* handle, PROJPOINT* points, int count, Direction const& direction) noexcept {
    if (!handle) {
        LogPrintf("NULL hProj pointer!\n");
        return false;
    }
    if (!points || count < 1)
        return inconsistent();
    auto& block = ProjectionBlock::of(handle);
    if (!block.formula)
        return convertNothing(block.record, {points, static_cast<std::size_t>(count)});
    auto const size = static_cast<std::size_t>(count);
    auto const outcome = withDefaultFloatingPoint([&] {
        return block.converter.*direction.code
                   ? block.converter.convert(direction.code, levels::pointsOf(points, size), {.keepsMarked = true})
                   : markAll({points, size});
    });
    block.record.iResult = outcome.lost || outcome.failed ? 1 : 0;
    if (outcome.failed)
        LogPrintf("%s", direction.failure);
    else if (outcome.lost)
        LogPrintf("  One or more unplottable points generated.\n");
    return !outcome.failed;
}

bool isGeographic(PROJPOINT const& point) {
    return point.x >= -360 && point.x <= 360 && point.y >= -90 && point.y <= 90;
}

} // namespace

void* ProjCreateProjection(PROJDATA* data) {
    LogPrintf("ProjCreateProjection(pProjData=%p)\n", static_cast<void*>(data));
    if (!data)
        return nullptr;
    char message[512];
    if (ProjCheckParams(data, message, true) != 0) {
        LogPrintf("Invalid parameter error:  \"%s\"\n", message);
        return nullptr;
    }
    if (data->Type != ProjTypeUnprojectedLatLong && !completeEllipsoid(*data))
        return nullptr;
    std::unique_ptr<ProjectionBlock> block(new (std::nothrow) ProjectionBlock);
    if (!block) {
        inconsistent();
        return nullptr;
    }
    {
        FloatingPointScope const scope;
        if (data->Type == ProjTypeUniversalTransverseMercator)
            completeUtm(*data);
        block->record = *data;
        completeScales(block->record);
        prepare(*block);
    }
    logRecord(&block->record);
    LogPrintf("ProjCreateProjection:  Returning HPROJ of %p\n", static_cast<void*>(&block->record));
    return &block.release()->record;
}

void ProjDeleteProjection(void* handle) {
    LogPrintf("ProjDeleteProjection(hProj=%p)\n", handle);
    if (!handle)
        return;
    auto& block = ProjectionBlock::of(handle);
    if (block.owners.fetch_sub(1, std::memory_order_acq_rel) == 1)
        std::unique_ptr<ProjectionBlock>{&block}.reset();
}

bool ProjForward(void* handle, PROJPOINT* points, int count) {
    LogPrintf("ProjForward(hProj=%p, pPts=%p, nPts=%d)\n", handle, static_cast<void*>(points), count);
    return convert(handle, points, count, forward);
}

bool ProjInverse(void* handle, PROJPOINT* points, int count) {
    LogPrintf("ProjInverse(hProj=%p, pPts=%p, nPts=%d)\n", handle, static_cast<void*>(points), count);
    return convert(handle, points, count, inverse);
}

int ProjResult(void* handle) {
    LogPrintf("ProjResult(hProj=%p)\n", handle);
    return handle ? ProjectionBlock::of(handle).record.iResult : 0;
}

bool ProjGetHandleInfo(void* handle, PROJDATA* out) {
    LogPrintf("ProjGetHandleInfo(hProj=%p, pProjData=%p)\n", handle, static_cast<void*>(out));
    if (!handle || !out)
        return false;
    *out = ProjectionBlock::of(handle).record;
    return true;
}

bool ProjLLInProjection(void* handle, PROJPOINT const* point) {
    LogPrintf("ProjLLInProjection(hProj=%p, pPt=%p)\n", handle, static_cast<void const*>(point));
    if (!handle || !point)
        return false;
    auto const& block = ProjectionBlock::of(handle);
    if (!withDefaultFloatingPoint([&] { return isGeographic(*point); }))
        return false;
    if (!block.formula)
        return inconsistent();
    return block.converter.forward &&
           withDefaultFloatingPoint([&] { return block.formula->inProjection(block.area, *point); });
}

bool ProjLLOffsetSplitObject(void* handle, PROJPOINT const* points, unsigned count, double* out1, double* out2) {
    LogPrintf("ProjLLOffsetSplitObject(hProj=%p, pPts=%p, nPts=%u, pOut1=%p, pOut2=%p)\n", handle,
              static_cast<void const*>(points), count, static_cast<void*>(out1), static_cast<void*>(out2));
    if (!handle || !points || count == 0 || !out1 || !out2)
        return false;
    auto const& block = ProjectionBlock::of(handle);
    if (!block.formula)
        return inconsistent();
    return withDefaultFloatingPoint(
        [&] { return block.formula->offsetSplitObject(block.area, points, count, out1, out2); });
}

} // namespace ZrProj
