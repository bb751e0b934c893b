// A host with floating-point traps: every arithmetic exception kills it.
#pragma once

#include <cfenv>

#if defined(__x86_64__)
#include <xmmintrin.h>
#endif

class TrapsEnabled {
public:
    TrapsEnabled() {
        std::feholdexcept(&saved_);
        feenableexcept(FE_ALL_EXCEPT);
        state_ = state();
    }
    ~TrapsEnabled() { std::fesetenv(&saved_); }
    TrapsEnabled(TrapsEnabled const&) = delete;
    TrapsEnabled& operator=(TrapsEnabled const&) = delete;

    /// Whether flags, traps and rounding are as they were set.
    bool untouched() const { return state() == state_ && std::fetestexcept(FE_ALL_EXCEPT) == 0; }

private:
    /// With the flag of denormal operands, which the standard functions do not know.
    static unsigned state() {
#if defined(__x86_64__)
        return _mm_getcsr();
#else
        return static_cast<unsigned>(fegetexcept());
#endif
    }

    std::fenv_t saved_ = {};
    unsigned state_ = 0;
};
