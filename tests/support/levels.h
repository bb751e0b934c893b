// Running a check at each processor level that this machine has.
#pragma once

#include "formulas/levels.h"

#include <gtest/gtest.h>

namespace ZrProj::test {

inline char const* nameOf(formulas::Level level) {
    constexpr char const* names[] = {"scalar", "baseline", "avx2", "avx512"};
    return names[static_cast<int>(level)];
}

/// Calls `check(level)` with each available level in use, and puts the first level back.
template <class Check> void forEachLevel(Check const& check) {
    auto const before = formulas::levelInUse();
    for (auto const level :
         {formulas::Level::scalar, formulas::Level::baseline, formulas::Level::avx2, formulas::Level::avx512}) {
        if (!formulas::isAvailable(level))
            continue;
        SCOPED_TRACE(nameOf(level));
        formulas::useLevel(level);
        check(level);
    }
    formulas::useLevel(before);
}

} // namespace ZrProj::test
