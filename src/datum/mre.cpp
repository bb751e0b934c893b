#include "datum/mre.h"

#include "datum/mre_table.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace ZrProj::datum {
namespace {

constexpr Regression expanded(RegressionCentre const& centre) {
    Regression result{centre.type, centre.lat0, centre.lon0, centre.K, {}, {}};
    for (auto const& term : regressionTerms)
        if (term.type == centre.type)
            (term.change == Change::lat ? result.lat : result.lon)[term.u][term.v] = term.coefficient;
    return result;
}

constexpr auto regressions = [] {
    std::array<Regression, regressionCentres.size()> result{};
    std::ranges::transform(regressionCentres, result.begin(), expanded);
    return result;
}();

} // namespace

Regression const* regressionOf(DatumType type) noexcept {
    auto const found = std::ranges::find(regressions, type, &Regression::type);
    return found == regressions.end() ? nullptr : &*found;
}

} // namespace ZrProj::datum
