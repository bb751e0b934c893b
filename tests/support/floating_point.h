// A host with floating-point traps: every arithmetic exception kills it.
#pragma once

#include <cfenv>

class TrapsEnabled {
public:
    TrapsEnabled() {
        std::feholdexcept(&saved_);
        feenableexcept(FE_ALL_EXCEPT);
    }
    ~TrapsEnabled() { std::fesetenv(&saved_); }
    TrapsEnabled(TrapsEnabled const&) = delete;
    TrapsEnabled& operator=(TrapsEnabled const&) = delete;

    /// Whether flags and traps are as they were set.
    bool untouched() const { return std::fetestexcept(FE_ALL_EXCEPT) == 0 && fegetexcept() == FE_ALL_EXCEPT; }

private:
    std::fenv_t saved_ = {};
};
