#include "datum/mre.h"

#include "datum/mre_table.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>

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

/// A datum with equations, and the same one with three shifts.
struct Pair {
    DatumType equations, shifts;
};

// clang-format off
constexpr std::array pairs{
    Pair{DatumTypeAustralianGeodetic1966Mre,  DatumTypeAustralianGeodetic1966},
    Pair{DatumTypeAustralianGeodetic1984Mre,  DatumTypeAustralianGeodetic1984},
    Pair{DatumTypeCampoInchausepeArgentinaMre, DatumTypeCampoInchausepeArgentina},
    Pair{DatumTypeCorregoAlegreBrazilMre,     DatumTypeCorregoAlegreBrazil},
    Pair{DatumTypeEuropean1950Mre,            DatumTypeEuropean1950Mean},
    Pair{DatumTypeNad1927ConusMre,            DatumTypeNad1927Conus},
    Pair{DatumTypeNad1927CanadaMre,           DatumTypeNad1927CanadaMean},
    Pair{DatumTypeSouthAmerican1969Mre,       DatumTypeSouthAmerican1969},
};
// clang-format on
static_assert(pairs.size() == regressionCentres.size());

} // namespace

Regression const* regressionOf(DatumType type) noexcept {
    auto const found = std::ranges::find(regressions, type, &Regression::type);
    return found == regressions.end() ? nullptr : &*found;
}

DatumType threeShiftsOf(DatumType type) noexcept {
    auto const found = std::ranges::find(pairs, type, &Pair::equations);
    return found == pairs.end() ? DatumTypeNone : found->shifts;
}

bool haveRunAway(DATUMPOINT const& byEquations, DATUMPOINT const& byShifts) noexcept {
    constexpr double degree = std::numbers::pi / 180, metresADegree = 111200, most = 50;
    double const north = byEquations.y - byShifts.y;
    double const east = std::remainder(byEquations.x - byShifts.x, 360) * std::cos(byShifts.y * degree);
    return !(metresADegree * std::hypot(east, north) <= most);
}

} // namespace ZrProj::datum
