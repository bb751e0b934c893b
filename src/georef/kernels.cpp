// Which processor level's kernels are in use.
#include "formulas/levels.h"
#include "georef/kernels/kernel_set.h"

namespace ZrProj::formulas {

KernelSet const& georefKernels() noexcept {
    switch (levelInUse()) {
#if defined(ZRPROJ_SIMD)
    case Level::baseline:
        return baseline::georefKernels;
#if defined(__x86_64__)
    case Level::avx2:
        return avx2::georefKernels;
    case Level::avx512:
        return avx512::georefKernels;
#endif
#endif
    default:
        return scalar::georefKernels;
    }
}

} // namespace ZrProj::formulas
