// Running a check at each processor level that this machine has.
#pragma once

#include "levels/level.h"

#include <gtest/gtest.h>

namespace ZrProj::test {

/// Holds a level in use while it lives.
class LevelScope {
public:
    explicit LevelScope(levels::Level level) { levels::useLevel(level); }
    ~LevelScope() { levels::useLevel(before_); }
    LevelScope(LevelScope const&) = delete;
    LevelScope& operator=(LevelScope const&) = delete;

private:
    levels::Level before_ = levels::levelInUse();
};

/// Calls `check(level)` with each available level in use, and puts the first level back.
template <class Check> void forEachLevel(Check const& check) {
    for (auto const level : levels::allLevels) {
        if (!levels::isAvailable(level))
            continue;
        SCOPED_TRACE(levels::nameOf(level));
        LevelScope const scope(level);
        check(level);
    }
}

} // namespace ZrProj::test
