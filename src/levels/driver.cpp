#include "levels/driver.h"

namespace ZrProj::levels::ZRPROJ_LEVEL {

Outcome convert(Stage const* stages, std::size_t stageCount, Points points, Marking const& marking) noexcept {
    Staged work(stages, stageCount);
    return convertPoints(work, points, marking);
}

} // namespace ZrProj::levels::ZRPROJ_LEVEL
