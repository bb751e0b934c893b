#include "levels/driver.h"

namespace ZrProj::levels::ZRPROJ_LEVEL {

Outcome convert(Stage const* stages, std::size_t stageCount, Points const& points, Marking const& marking) noexcept {
    return convertPoints<Staged>(points, marking, stages, stageCount);
}

} // namespace ZrProj::levels::ZRPROJ_LEVEL
