// What a projection handle is: the address of the record inside a block of memory that holds more.
#pragma once

#include "formulas/converter.h"

#include <atomic>
#include <cstddef>
#include <optional>

namespace ZrProj {

/// A handle's block. The handle is the address of `record`, which is what callers may know of it.
struct ProjectionBlock {
    std::atomic<int> owners{1};
    std::optional<formulas::Formula> formula; // nothing: the type does not convert
    formulas::Converter converter;            // ready for `record`, where there is a formula
    formulas::ParametersInDegrees area;       // what in-range and split tests and the map's edges go by
    PROJDATA record{};

    static ProjectionBlock& of(void* handle) {
        return *reinterpret_cast<ProjectionBlock*>(static_cast<std::byte*>(handle) - offsetof(ProjectionBlock, record));
    }
};

/// Makes the handle's block live until one more ProjDeleteProjection. Returns the handle; null stays null.
inline void* shareProjection(void* handle) noexcept {
    if (handle)
        ProjectionBlock::of(handle).owners.fetch_add(1, std::memory_order_relaxed);
    return handle;
}

} // namespace ZrProj
