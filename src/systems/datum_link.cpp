#include "systems/datum_link.h"

#include "host/text.h"
#include "systems/names.h"
#include "systems/operations.h"
#include "systems/register.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace ZrProj::systems {
namespace {

constexpr double sameFigure = 1e-3; // metres

/// The datum that counts from Greenwich: "NTF (Paris)" is NTF.
Code fromGreenwich(Datum const& datum) {
    std::string const suffix = " (" + datum.meridian.name + ")";
    if (datum.meridian.longitude == 0 || !datum.name.ends_with(suffix))
        return datum.code;
    Code const other = codeNamed(Thing::datum, datum.name.substr(0, datum.name.size() - suffix.size()));
    return other == 0 ? datum.code : other;
}

/// Whether the register knows a shift as a way from a datum to WGS 84, to what texts round.
bool isRegistered(ToWgs84 const& shift, Code datum) {
    constexpr Code wgs84 = 6326;
    constexpr double rounding = 5e-4; // metres, arcseconds, parts per million
    auto const has = [&](DirectedOperation const& way) {
        auto const& numbers = way.operation.parameters;
        double const sense = way.reversed ? -1 : 1;
        return way.operation.method == OperationMethod::geocentric &&
               std::ranges::equal(shift, std::span(numbers).first(shift.size()),
                                  [=](double a, double b) { return std::fabs(a - sense * b) <= rounding; });
    };
    return std::ranges::any_of(operationsBetween(datum, wgs84), has);
}

/// The shift by which a definition's datum is another than the register's.
std::optional<ToWgs84> ownShift(Datum const& datum) {
    if (datum.toWgs84 == ToWgs84{} || (datum.toWgs84 && isRegistered(*datum.toWgs84, fromGreenwich(datum))))
        return {};
    return datum.toWgs84;
}

double flattening(Ellipsoid const& ellipsoid) {
    return ellipsoid.inverseFlattening == 0 ? 0 : 1 / ellipsoid.inverseFlattening;
}

bool haveOneFigure(Datum const& a, Datum const& b) {
    Ellipsoid const &one = a.ellipsoid, &other = b.ellipsoid;
    return std::fabs(one.semiMajor - other.semiMajor) < sameFigure &&
           std::fabs(flattening(one) - flattening(other)) * one.semiMajor < sameFigure;
}

bool isUntold(Datum const& datum) {
    return equalIgnoringCase(std::string_view(datum.name).substr(0, 7), "unknown");
}

bool areOneWithoutCodes(Datum const& a, Datum const& b) {
    bool const sameName = equalIgnoringCase(a.name, b.name) || (isUntold(a) && isUntold(b));
    return sameName && haveOneFigure(a, b) && a.toWgs84 == b.toWgs84 && a.grids == b.grids;
}

} // namespace

std::optional<DatumLink> linkBetween(Datum const& a, Datum const& b) {
    if (a.code == 0 && b.code == 0)
        return areOneWithoutCodes(a, b) ? std::optional(DatumLink{}) : std::nullopt;
    if (a.code == 0 || b.code == 0 || ownShift(a) != ownShift(b))
        return {};
    Code const one = fromGreenwich(a), other = fromGreenwich(b);
    if (one == other)
        return DatumLink{};
    auto const wholeOf = [](Code code) { return ensembleOf(code) == 0 ? code : ensembleOf(code); };
    auto const whole = datumOf(wholeOf(one));
    if (!whole || whole->ensembleAccuracy == 0 || wholeOf(one) != wholeOf(other))
        return {};
    return DatumLink{whole->ensembleAccuracy,
                     a.name + " and " + b.name + " are taken as one, which is what " + whole->name + " stands for"};
}

} // namespace ZrProj::systems
