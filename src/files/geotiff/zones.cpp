#include "files/geotiff/zones.h"

#include "systems/register.h"

#include <zrproj/projection.h>
#include <zrproj/zones.h>

#include <array>

namespace ZrProj::GeoTIFF {
namespace {

using systems::Definition;
using systems::Parameter;

constexpr systems::Code nad27 = 4267, nad83 = 4269, metre = 9001, surveyFoot = 9003;
constexpr systems::Code first = 10000, last = 15500, from1983 = 30;

/// The zone's definition; nothing where it has none for that year.
std::optional<PROJDATA> projectionOf(ProjType year, StateZoneType zone) {
    PROJDATA record = {};
    record.Type = year;
    record.Zone = zone;
    ProjGetStateZoneParams(&record);
    return record.Zone == StateZoneTypeNone ? std::nullopt : std::optional(record);
}

void setMethod(Definition& system, PROJDATA const& zone) {
    auto const set = [&system](Parameter parameter, double value) { system.parameters[parameter] = value; };
    bool const isOblique = zone.Type == ProjTypeHotineObliqueMercator,
               isCone = zone.Type == ProjTypeLambertConformalConic;
    system.method = isOblique                        ? systems::Method::hotineB
                    : isCone                         ? systems::Method::lambertConicMichigan
                    : zone.Type == ProjTypePolyconic ? systems::Method::polyconic
                                                     : systems::Method::transverseMercator;
    set(Parameter::latitudeOfOrigin, zone.Lat0);
    set(Parameter::longitudeOfOrigin, isOblique ? zone.Lon1 : zone.Lon0);
    set(Parameter::falseEasting, zone.xOrg);
    set(Parameter::falseNorthing, zone.yOrg);
    if (isCone) { // the old zones of Michigan have an ellipsoid 800 feet higher
        set(Parameter::standardParallel1, zone.Lat1);
        set(Parameter::standardParallel2, zone.Lat2);
        set(Parameter::ellipsoidScale, zone.MajorRadius / system.datum.ellipsoid.semiMajor);
    } else if (zone.Type != ProjTypePolyconic) {
        set(Parameter::scaleFactor, zone.K0);
    }
    if (isOblique) {
        set(Parameter::azimuth, zone.Alpha);
        set(Parameter::rectifiedAngle, zone.Alpha);
    }
}

Definition definitionOf(ProjType year, StateZoneType number, PROJDATA const& zone) {
    bool const isOld = year == ProjTypeStatePlane1927;
    Definition const base = *systems::definitionOf(isOld ? nad27 : nad83);
    std::array<char, 64> name{};
    int usgs = 0;
    ProjGetStateZoneInfo(number, name.data(), &usgs);
    Definition system;
    system.name = base.name + " / " + name.data();
    system.baseName = base.name;
    system.baseCode = base.code;
    system.datum = base.datum;
    system.conversionName = name.data();
    system.conversionCode = first + usgs + (isOld ? 0 : from1983);
    system.unit = *systems::unitOf(isOld ? surveyFoot : metre);
    setMethod(system, zone);
    return system;
}

} // namespace

std::optional<systems::Definition> zoneOfSystem(systems::Code code) {
    ProjType year{};
    StateZoneType number{};
    if (!ProjGetStateZoneFromPOSCNumber(code, &year, &number))
        return {};
    auto const zone = projectionOf(year, number);
    return zone ? std::optional(definitionOf(year, number, *zone)) : std::nullopt;
}

std::optional<systems::Definition> zoneOfProjection(systems::Code code) {
    ProjType const year = baseOfZone(code) == nad27 ? ProjTypeStatePlane1927 : ProjTypeStatePlane1983;
    int const wanted = code - first - (year == ProjTypeStatePlane1927 ? 0 : from1983);
    for (std::int32_t i = 0; i < StateZoneTypeNone && baseOfZone(code) != 0; ++i) {
        int usgs = 0;
        auto const number = static_cast<StateZoneType>(i);
        ProjGetStateZoneInfo(number, nullptr, &usgs);
        if (auto const zone = usgs == wanted && usgs != 0 ? projectionOf(year, number) : std::nullopt)
            return definitionOf(year, number, *zone);
    }
    return {};
}

systems::Code baseOfZone(systems::Code projection) {
    if (projection <= first || projection >= last)
        return 0;
    return projection % 100 < from1983 ? nad27 : nad83;
}

} // namespace ZrProj::GeoTIFF
