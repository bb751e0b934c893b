#include "datum/levels.h"

#include "formulas/levels.h"

namespace ZrProj::datum {

MethodSet const& methodsInUse() noexcept {
    switch (formulas::levelInUse()) {
#if defined(ZRPROJ_SIMD)
    case formulas::Level::baseline:
        return baseline::methodSet;
#if defined(__x86_64__)
    case formulas::Level::avx2:
        return avx2::methodSet;
    case formulas::Level::avx512:
        return avx512::methodSet;
#endif
#endif
    default:
        return scalar::methodSet;
    }
}

} // namespace ZrProj::datum
