#include "formulas/levels.h"

#include <atomic>

namespace ZrProj::formulas {
namespace {

FormulaSet const* formulaSetOf(Level level) noexcept {
    switch (level) {
    case Level::scalar:
        return &scalar::formulaSet;
#if defined(ZRPROJ_SIMD)
    case Level::baseline:
        return &baseline::formulaSet;
#if defined(__x86_64__)
    case Level::avx2:
        return __builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma") ? &avx2::formulaSet : nullptr;
    case Level::avx512:
        return __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512cd") &&
                       __builtin_cpu_supports("avx512dq") && __builtin_cpu_supports("avx512bw") &&
                       __builtin_cpu_supports("avx512vl")
                   ? &avx512::formulaSet
                   : nullptr;
#endif
#endif
    default:
        return nullptr;
    }
}

Level bestLevel() noexcept {
    for (auto const level : {Level::avx512, Level::avx2, Level::baseline})
        if (formulaSetOf(level))
            return level;
    return Level::scalar;
}

std::atomic<Level> chosen{bestLevel()};

} // namespace

bool isAvailable(Level level) noexcept {
    return formulaSetOf(level) != nullptr;
}
Level levelInUse() noexcept {
    return chosen.load(std::memory_order_relaxed);
}
void useLevel(Level level) noexcept {
    chosen.store(level, std::memory_order_relaxed);
}

std::optional<Formula> formulaOf(Method method) noexcept {
    if (method == Method::none)
        return {};
    return formulaSetOf(levelInUse())->byMethod[static_cast<std::size_t>(method)]();
}

} // namespace ZrProj::formulas
