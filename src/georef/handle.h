// What a georeference system is: the address of the record inside a block of memory that holds more.
#pragma once

#include "georef/kernels.h"

#include <atomic>
#include <cstddef>
#include <vector>

namespace ZrProj {

/// The memory block of a system. The handle is the address of `record`, whose arrays are `source` and `target`.
struct GeorefBlock {
    std::atomic<int> owners{1};
    std::vector<GEOREFPOINT> source, target;
    georef::Polynomial polynomial;   // the map of methods 0 to 5
    CImageRegistration registration; // the map of methods 6 to 11
    GEOREF record{};

    static GeorefBlock& of(void* handle) {
        return *reinterpret_cast<GeorefBlock*>(static_cast<std::byte*>(handle) - offsetof(GeorefBlock, record));
    }
};

/// Adds an owner, so that the block lives until one more RefDeleteSystem. Returns the handle; null stays null.
inline void* shareSystem(void* system) noexcept {
    if (system)
        GeorefBlock::of(system).owners.fetch_add(1, std::memory_order_relaxed);
    return system;
}

} // namespace ZrProj
