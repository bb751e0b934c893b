// Datum handles and the conversion of points through them.
#include "datum/handle.h"
#include "frame/errors.h"
#include "host/fpenv.h"

#include <memory>
#include <new>

namespace ZrProj {
namespace {

/// Reports a failed assertion with the line of the call. Always returns false, so that a caller can return it.
bool inconsistent(int line = __builtin_LINE()) noexcept {
    return AssertFailed(".\\zrDatum.cpp", line);
}

bool leavesPointsAlone(DATUMXFORM const& request) {
    return request.Source == request.Destination && request.Source != DatumTypeUserDefined;
}

} // namespace

void* DatCreateDatum(DATUMXFORM const* xform) {
    if (!xform || DatCheckParams(xform, nullptr, true) != 0)
        return nullptr;
    std::unique_ptr<DatumBlock> block(new (std::nothrow) DatumBlock);
    if (!block)
        return nullptr;
    block->request = *xform;
    FloatingPointScope const scope;
    block->conversion = datum::prepareConversion(block->request);
    return &block.release()->request;
}

void DatDeleteDatum(void* handle) {
    if (!handle)
        return;
    auto& block = DatumBlock::of(handle);
    if (block.owners.fetch_sub(1, std::memory_order_acq_rel) == 1)
        std::unique_ptr<DatumBlock>{&block}.reset();
}

bool DatConvertDatum(void* handle, DATUMPOINT* points, int count) {
    if (!handle)
        return false;
    if (!points || count < 1)
        return inconsistent();
    auto& block = DatumBlock::of(handle);
    block.hadUnplottables = false;
    if (leavesPointsAlone(block.request))
        return true;
    if (!block.conversion.isDefined)
        return inconsistent();
    FloatingPointScope const scope;
    return datum::convert(block.conversion, {points, static_cast<std::size_t>(count)}, block.hadUnplottables);
}

bool DatHadUnplottables(void* handle) {
    return handle && DatumBlock::of(handle).hadUnplottables;
}

bool DatGetHandleInfo(void* handle, DATUMXFORM* xform) {
    if (!handle || !xform)
        return false;
    *xform = DatumBlock::of(handle).request;
    return true;
}

} // namespace ZrProj
