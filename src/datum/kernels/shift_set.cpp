// The set of a processor level's steps between datums.
#include "datum/kernels/shift.h"
#include "levels/level.h"

namespace ZrProj {

template <> datum::ShiftSet const& levels::operationsOf<datum::ShiftSet, levels::ZRPROJ_LEVEL::Home>() noexcept {
    using namespace datum::ZRPROJ_LEVEL;
    static datum::ShiftSet const set{levels::ZRPROJ_LEVEL::convert, geocentricShift(), molodenskyShift(),
                                     abridgedMolodenskyShift(), offsetShift()};
    return set;
}

} // namespace ZrProj
