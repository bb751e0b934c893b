// The number types that all arithmetic over arrays is written for: `double`, and `Register`, a SIMD register full of
// doubles. What holds for one holds for each lane of the other: no operation here lets one lane's value change another
// lane's result.
//
// This header, like all such code, is compiled once per processor level, into the namespace ZRPROJ_LEVEL (scalar,
// baseline, avx2, avx512). Nothing of a level may be shared with another: an inline function compiled for a newer
// processor could be the copy that the linker keeps for everybody.
#pragma once

#include <bit>
#include <cfloat>
#include <cmath>
#include <cstdint>
#include <limits>

#if !defined(ZRPROJ_LEVEL_scalar)
#include <xsimd/xsimd.hpp>
#endif

namespace ZrProj::levels::ZRPROJ_LEVEL {

inline double select(bool condition, double yes, double no) {
    return condition ? yes : no;
}
inline bool any(bool condition) {
    return condition;
}
inline bool all(bool condition) {
    return condition;
}
inline double abs(double x) {
    return std::fabs(x);
}
inline double sqrt(double x) {
    return std::sqrt(x);
}
inline double copySign(double magnitude, double sign) {
    return std::copysign(magnitude, sign);
}

/// The bits of a number, for what is done to exponents and signs.
inline std::uint64_t bitsOf(double x) {
    return std::bit_cast<std::uint64_t>(x);
}
inline double fromBits(std::uint64_t bits) {
    return std::bit_cast<double>(bits);
}

/// table[index] of each lane; `index` a whole number.
inline double lookUp(double const* table, double index) {
    return table[static_cast<std::size_t>(index)];
}
/// The same of words that need be no numbers.
inline std::uint64_t lookUp(std::uint64_t const* table, double index) {
    return table[static_cast<std::size_t>(index)];
}

#if defined(ZRPROJ_LEVEL_scalar)

using Register = double;
inline constexpr int lanes = 1;
inline double load(double const* from) {
    return *from;
}
inline void store(double* to, double x) {
    *to = x;
}

#else

#if defined(ZRPROJ_LEVEL_avx512)
using Architecture = xsimd::avx512dq;
#elif defined(ZRPROJ_LEVEL_avx2)
using Architecture = xsimd::fma3<xsimd::avx2>;
#else
using Architecture = xsimd::default_arch;
#endif

/// A condition for each lane.
struct Mask {
    xsimd::batch_bool<double, Architecture> v;

    friend Mask operator&(Mask a, Mask b) { return {a.v & b.v}; }
    friend Mask operator|(Mask a, Mask b) { return {a.v | b.v}; }
    friend Mask operator!(Mask a) { return {!a.v}; }
    friend bool any(Mask a) { return xsimd::any(a.v); }
    friend bool all(Mask a) { return xsimd::all(a.v); }
};

/// The bits of each lane.
struct Bits {
    xsimd::batch<std::uint64_t, Architecture> v;

    friend Bits operator&(Bits a, std::uint64_t b) { return {a.v & b}; }
    friend Bits operator|(Bits a, std::uint64_t b) { return {a.v | b}; }
    friend Bits operator^(Bits a, Bits b) { return {a.v ^ b.v}; }
    friend Bits operator+(Bits a, std::uint64_t b) { return {a.v + b}; }
    friend Bits operator-(Bits a, std::uint64_t b) { return {a.v - b}; }
    friend Bits operator-(Bits a, Bits b) { return {a.v - b.v}; }
    friend Bits operator<<(Bits a, int n) { return {a.v << n}; }
    friend Bits operator>>(Bits a, int n) { return {a.v >> n}; }
};

struct Register {
    xsimd::batch<double, Architecture> v;

    Register() = default;
    Register(double x) : v(x) {}
    explicit Register(xsimd::batch<double, Architecture> const& x) : v(x) {}

    friend Register operator-(Register a) { return Register(-a.v); }
    friend Register operator+(Register a, Register b) { return Register(a.v + b.v); }
    friend Register operator-(Register a, Register b) { return Register(a.v - b.v); }
    friend Register operator*(Register a, Register b) { return Register(a.v * b.v); }
    friend Register operator/(Register a, Register b) { return Register(a.v / b.v); }
    friend Mask operator<(Register a, Register b) { return {a.v < b.v}; }
    friend Mask operator<=(Register a, Register b) { return {a.v <= b.v}; }
    friend Mask operator>(Register a, Register b) { return {a.v > b.v}; }
    friend Mask operator>=(Register a, Register b) { return {a.v >= b.v}; }
    friend Mask operator==(Register a, Register b) { return {a.v == b.v}; }
    friend Mask operator!=(Register a, Register b) { return {a.v != b.v}; }
};

inline constexpr int lanes = xsimd::batch<double, Architecture>::size;
inline Register load(double const* from) {
    return Register(xsimd::batch<double, Architecture>::load_unaligned(from));
}
inline void store(double* to, Register x) {
    x.v.store_unaligned(to);
}

inline Register select(Mask condition, Register yes, Register no) {
    return Register(xsimd::select(condition.v, yes.v, no.v));
}
inline Register abs(Register x) {
    return Register(xsimd::abs(x.v));
}
inline Register sqrt(Register x) {
    return Register(xsimd::sqrt(x.v));
}
inline Bits bitsOf(Register x) {
    return {xsimd::bitwise_cast<xsimd::batch<std::uint64_t, Architecture>>(x.v)};
}
inline Register fromBits(Bits bits) {
    return Register(xsimd::bitwise_cast<xsimd::batch<double, Architecture>>(bits.v));
}
/// Whole numbers from 0 to 2^32 - 1 as such.
inline auto wholeOf(Register x) {
    auto const bits = bitsOf(x + 0x1p52) & 0xFFFFFFFF;
    return xsimd::bitwise_cast<xsimd::batch<std::int64_t, Architecture>>(bits.v);
}
inline Register lookUp(double const* table, Register index) {
    return Register(xsimd::batch<double, Architecture>::gather(table, wholeOf(index)));
}
inline Bits lookUp(std::uint64_t const* table, Register index) {
    return {xsimd::batch<std::uint64_t, Architecture>::gather(table, wholeOf(index))};
}
inline Register copySign(Register magnitude, Register sign) {
    Register const negativeZero = -0.0;
    return Register((sign.v & negativeZero.v) | xsimd::abs(magnitude.v));
}

#endif

/// For what cannot be computed. Quiet: no floating-point flag is raised by it.
inline constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

/// A coordinate pair on its way.
template <class R> struct Pair { R x, y; };

/// A condition on an R.
template <class R> using Condition = decltype(R() < R());

} // namespace ZrProj::levels::ZRPROJ_LEVEL
