// Running a check at each processor level that this machine has.
#pragma once

#include "formulas/levels.h"

#include <gtest/gtest.h>

namespace ZrProj::test {

inline char const* nameOf(formulas::Level level) {
    constexpr char const* names[] = {"scalar", "baseline", "avx2", "avx512"};
    return names[static_cast<int>(level)];
}

/// Holds a level in use while it lives.
class LevelScope {
public:
    explicit LevelScope(formulas::Level level) { formulas::useLevel(level); }
    ~LevelScope() { formulas::useLevel(before_); }
    LevelScope(LevelScope const&) = delete;
    LevelScope& operator=(LevelScope const&) = delete;

private:
    formulas::Level before_ = formulas::levelInUse();
};

/// Calls `check(level)` with each available level in use, and puts the first level back.
template <class Check> void forEachLevel(Check const& check) {
    for (auto const level :
         {formulas::Level::scalar, formulas::Level::baseline, formulas::Level::avx2, formulas::Level::avx512}) {
        if (!formulas::isAvailable(level))
            continue;
        SCOPED_TRACE(nameOf(level));
        LevelScope const scope(level);
        check(level);
    }
}

} // namespace ZrProj::test
