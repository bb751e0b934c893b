#include "host/fpenv.h"

#include <cfenv>

namespace ZrProj {

#if defined(__x86_64__)

namespace {
constexpr unsigned arithmeticFlags = _MM_EXCEPT_DIV_ZERO | _MM_EXCEPT_INVALID | _MM_EXCEPT_OVERFLOW;
}

void clearArithmeticFlags() noexcept {
    _mm_setcsr(_mm_getcsr() & ~arithmeticFlags);
}

bool arithmeticFlagRaised() noexcept {
    return (_mm_getcsr() & arithmeticFlags) != 0;
}

#else

void clearArithmeticFlags() noexcept {
    std::feclearexcept(FE_DIVBYZERO | FE_INVALID | FE_OVERFLOW);
}

bool arithmeticFlagRaised() noexcept {
    return std::fetestexcept(FE_DIVBYZERO | FE_INVALID | FE_OVERFLOW) != 0;
}

#endif

} // namespace ZrProj
