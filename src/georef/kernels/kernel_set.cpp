#include "georef/kernels/kernels.h"

namespace ZrProj {

template <> georef::KernelSet const& levels::operationsOf<georef::KernelSet, levels::ZRPROJ_LEVEL::Home>() noexcept {
    using namespace georef::ZRPROJ_LEVEL;
    static constexpr georef::KernelSet set{mapByPolynomial, mapByWarp, basisRow, factorise};
    return set;
}

} // namespace ZrProj
