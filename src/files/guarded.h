// What an exported function does runs in here: nothing is thrown across the interface.
#pragma once

#include "frame/errors.h"

namespace ZrProj {

/// The work's answer; false, and error 20201, when it runs out of memory, the one thing that throws here.
template <class Work> bool guarded(char const* sourceFile, Work const& work, int line = __builtin_LINE()) noexcept {
    try {
        return work();
    } catch (...) {
        ReportError(sourceFile, line, errorOutOfMemory, nullptr);
        return false;
    }
}

} // namespace ZrProj
