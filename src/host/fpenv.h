// The caller's floating-point environment is the caller's: what the library computes runs in the default one (all
// exceptions masked, rounding to nearest, denormals kept), and flags, rounding and traps are afterwards as before.
#pragma once

#if defined(__x86_64__)
#include <xmmintrin.h>
#else
#include <cfenv>
#endif

namespace ZrProj {

/// Holds the default floating-point environment while it lives, but for flags that may be set already.
class FloatingPointScope {
public:
    FloatingPointScope(FloatingPointScope const&) = delete;
    FloatingPointScope& operator=(FloatingPointScope const&) = delete;

#if defined(__x86_64__)
    // All arithmetic is SSE or above, governed by MXCSR alone; the x87 state is never touched. Writing MXCSR may take
    // longer than converting a point, so it is written only where it must change; flags that are set stay meanwhile.
    FloatingPointScope() noexcept : saved_(_mm_getcsr()) {
        if ((saved_ | flags) != (defaultState | flags))
            _mm_setcsr(defaultState);
    }
    ~FloatingPointScope() {
        if (_mm_getcsr() != saved_)
            _mm_setcsr(saved_);
    }

private:
    static constexpr unsigned defaultState = 0x1F80, flags = _MM_EXCEPT_MASK;
    unsigned saved_;
#else
    FloatingPointScope() noexcept {
        std::fegetenv(&saved_);
        std::fesetenv(FE_DFL_ENV);
    }
    ~FloatingPointScope() {
        std::fesetenv(&saved_);
    }

private:
    std::fenv_t saved_;
#endif
};

/// Clears the flags of division by zero, invalid operation and overflow. Underflow and inexact occur in good results.
void clearArithmeticFlags() noexcept;

/// Whether one of the three has been raised since they were cleared.
bool arithmeticFlagRaised() noexcept;

/// Runs `work` in the default environment. The call is kept out of line, so that no arithmetic of it moves across the
/// switch.
template <class Work> auto withDefaultFloatingPoint(Work const& work) {
    FloatingPointScope const scope;
    return [&]() __attribute__((noinline)) {
        return work();
    }
    ();
}

} // namespace ZrProj
