// Robinson's table: parallels for every 5 degrees of latitude, from the equator to the pole.
//
// Source    Robinson (1974), A new map projection: its development and characteristics, International Yearbook of
//           Cartography 14, pp. 145-155, as printed by Snyder (1990).
#pragma once

#include <array>

namespace ZrProj::formulas::ZRPROJ_LEVEL {

/// The length of a parallel in units of the equator, and its distance from the equator in units of the pole's.
struct RobinsonParallel {
    double length, distance;
};

// clang-format off
inline constexpr std::array robinsonParallels{
    RobinsonParallel{1.0000, 0.0000},
    RobinsonParallel{0.9986, 0.0620},
    RobinsonParallel{0.9954, 0.1240},
    RobinsonParallel{0.9900, 0.1860},
    RobinsonParallel{0.9822, 0.2480},
    RobinsonParallel{0.9730, 0.3100},
    RobinsonParallel{0.9600, 0.3720},
    RobinsonParallel{0.9427, 0.4340},
    RobinsonParallel{0.9216, 0.4958},
    RobinsonParallel{0.8962, 0.5571},
    RobinsonParallel{0.8679, 0.6176},
    RobinsonParallel{0.8350, 0.6769},
    RobinsonParallel{0.7986, 0.7346},
    RobinsonParallel{0.7597, 0.7903},
    RobinsonParallel{0.7186, 0.8435},
    RobinsonParallel{0.6732, 0.8936},
    RobinsonParallel{0.6213, 0.9394},
    RobinsonParallel{0.5722, 0.9761},
    RobinsonParallel{0.5322, 1.0000},
};
// clang-format on

static_assert(robinsonParallels.size() == 19);

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
