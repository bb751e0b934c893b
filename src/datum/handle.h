// What a datum handle is: the address of the request inside a block of memory that holds more.
#pragma once

#include "datum/conversion.h"

#include <atomic>
#include <cstddef>

namespace ZrProj {

/// A handle's block. The handle is the address of `request`, which is what callers may know of it.
struct DatumBlock {
    std::atomic<int> owners{1};
    bool hadUnplottables = false;
    datum::Conversion conversion; // ready for `request`
    DATUMXFORM request{};

    static DatumBlock& of(void* handle) {
        return *reinterpret_cast<DatumBlock*>(static_cast<std::byte*>(handle) - offsetof(DatumBlock, request));
    }
};

/// Makes the handle's block live until one more DatDeleteDatum. Returns the handle; null stays null.
inline void* shareDatum(void* handle) noexcept {
    if (handle)
        DatumBlock::of(handle).owners.fetch_add(1, std::memory_order_relaxed);
    return handle;
}

} // namespace ZrProj
