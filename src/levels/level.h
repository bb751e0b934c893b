// The processor levels that the arithmetic is built for, which of them is in use, and how what a level computes is
// reached.
//
// What is computed over arrays is compiled once for each level, into a namespace of the level's name, with the flags
// that cmake/ProcessorLevels.cmake gives it. A family of such operations is a struct of function pointers; a level's
// own set of them is what operationsOf returns.
//
// A new level is a row in the list below, and one in ProcessorLevels.cmake.
#pragma once

#include <array>
#include <cstddef>

namespace ZrProj::levels {

/// One `double` at a time, multiply-adds never fused: the reference.
namespace scalar {
struct Home {
    static constexpr char const* name = "scalar";
    static bool isAvailable() noexcept { return true; }
};
} // namespace scalar

#if defined(ZRPROJ_SIMD)
/// The least that every processor of the kind has: SSE2 on x86-64, NEON on 64-bit ARM.
namespace baseline {
struct Home {
    static constexpr char const* name = "baseline";
    static bool isAvailable() noexcept { return true; }
};
} // namespace baseline
#if defined(__x86_64__)
namespace avx2 {
struct Home {
    static constexpr char const* name = "avx2";
    static bool isAvailable() noexcept { return __builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma"); }
};
} // namespace avx2
namespace avx512 {
struct Home {
    static constexpr char const* name = "avx512";
    static bool isAvailable() noexcept {
        return __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512cd") &&
               __builtin_cpu_supports("avx512dq") && __builtin_cpu_supports("avx512bw") &&
               __builtin_cpu_supports("avx512vl");
    }
};
} // namespace avx512
#endif
#endif

/// The levels of a build, the higher ones behind.
template <class... Homes> struct LevelList { static constexpr std::size_t size = sizeof...(Homes); };

#if !defined(ZRPROJ_SIMD)
enum class Level { scalar };
using BuiltLevels = LevelList<scalar::Home>;
#elif !defined(__x86_64__)
enum class Level { scalar, baseline };
using BuiltLevels = LevelList<scalar::Home, baseline::Home>;
#else
enum class Level { scalar, baseline, avx2, avx512 };
using BuiltLevels = LevelList<scalar::Home, baseline::Home, avx2::Home, avx512::Home>;
#endif

inline constexpr auto allLevels = [] {
    std::array<Level, BuiltLevels::size> all{};
    for (std::size_t i = 0; i < all.size(); ++i)
        all[i] = static_cast<Level>(i);
    return all;
}();

char const* nameOf(Level level) noexcept;

/// Whether this processor can run it.
bool isAvailable(Level level) noexcept;

/// The level of what is made ready from now on; at first the best one available. For tests and benchmarks.
Level levelInUse() noexcept;
void useLevel(Level level) noexcept;

/// A level's operations of a family: specialised in a source that is compiled for every level.
template <class Operations, class Home> Operations const& operationsOf() noexcept;

template <class Operations> Operations const& operationsAt(Level level) noexcept {
    return [level]<class... Homes>(LevelList<Homes...>) -> Operations const& {
        static constexpr Operations const& (*at[])() noexcept = {operationsOf<Operations, Homes>...};
        return at[static_cast<std::size_t>(level)]();
    }(BuiltLevels{});
}

template <class Operations> Operations const& operationsInUse() noexcept {
    return operationsAt<Operations>(levelInUse());
}

} // namespace ZrProj::levels
