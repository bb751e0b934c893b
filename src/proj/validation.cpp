#include "proj/validation.h"

#include "frame/errors.h"
#include "frame/log.h"
#include "host/fpenv.h"
#include "proj/record.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <cstring>

namespace ZrProj {
namespace {

constexpr char sourceFile[] = ".\\validation.cpp";
constexpr int nullRecord = 998;
constexpr std::size_t messageSize = 512;

using Record = PROJDATA const&;

bool isStatePlane(Record r) {
    return r.Type == ProjTypeStatePlane1927 || r.Type == ProjTypeStatePlane1983;
}

bool hasOwnOrigin(Record r) {
    return r.Type != ProjTypeUniversalTransverseMercator && !isStatePlane(r);
}

bool always(Record) {
    return true;
}

bool hasOwnEllipsoid(Record r) {
    return !isStatePlane(r) && r.Ellipsoid == EllipsoidTypeUserDefined;
}

template <ProjType type> bool is(Record r) {
    return r.Type == type;
}

bool originFits(double origin) {
    constexpr double bound = 1.7014117331926443e38; // half the largest single-precision number
    return origin < bound && origin >= -bound;
}

bool isAngle(double degrees) {
    return degrees > -360 && degrees < 360;
}

bool zoneIsDefined(Record r) {
    PROJDATA scratch{};
    scratch.Type = r.Type;
    scratch.Zone = r.Zone;
    ProjGetStateZoneParams(&scratch);
    return scratch.Zone != StateZoneTypeNone;
}

/// Two parallels at least `apart` degrees from each other, and from each other's mirror image.
bool parallelsMakeACone(Record r) {
    constexpr double apart = 0.001;
    return std::fabs(r.Lat1 + r.Lat2) >= apart && std::fabs(r.Lat1 - r.Lat2) >= apart;
}

/// A check holds of the types that it applies to; written so that a NaN fails it.
struct Check {
    bool (*applies)(Record);
    bool (*holds)(Record);
    RecordFault fault;
};

// In this order: the first check that fails names the fault. Latitudes may lie anywhere within a full turn; two
// parallels of a Lambert cone differ by more than 0.1 degrees, up to rounding.
// clang-format off
constexpr std::array checks{
    Check{always,                                    [](Record r) { return r.Scale >= 0; },                                           {20231, ProjParamScale}},
    Check{always,                                    [](Record r) { return r.K0 >= 0; },                                              {20232, ProjParamK0}},
    Check{hasOwnOrigin,                              [](Record r) { return originFits(r.xOrg); },                                     {20233, ProjParamXOrg}},
    Check{hasOwnOrigin,                              [](Record r) { return originFits(r.yOrg); },                                     {20234, ProjParamYOrg}},
    Check{isStatePlane,                              zoneIsDefined,                                                                   {20252, ProjParamZone}},
    Check{always,                                    [](Record r) { return isAngle(r.Lon0); },                                        {20235, ProjParamLon0}},
    Check{always,                                    [](Record r) { return isAngle(r.Lon1); },                                        {20236, ProjParamLon1}},
    Check{always,                                    [](Record r) { return isAngle(r.Lon2); },                                        {20237, ProjParamLon2}},
    Check{always,                                    [](Record r) { return isAngle(r.Lon3); },                                        {20238, ProjParamLon3}},
    Check{always,                                    [](Record r) { return isAngle(r.Lat0); },                                        {20239, ProjParamLat0}},
    Check{always,                                    [](Record r) { return isAngle(r.Lat1); },                                        {20240, ProjParamLat1}},
    Check{always,                                    [](Record r) { return isAngle(r.Lat2); },                                        {20241, ProjParamLat2}},
    Check{always,                                    [](Record r) { return isAngle(r.Lat3); },                                        {20242, ProjParamLat3}},
    Check{is<ProjTypeHotineObliqueMercator>,         [](Record r) { return isAngle(r.Alpha); },                                       {20243, ProjParamAlpha}},
    Check{is<ProjTypeBonne>,                         [](Record r) { return r.Lat1 != 0; },                                            {20244, ProjParamLat1}},
    Check{is<ProjTypeAlbersEqualAreaConic>,          parallelsMakeACone,                                                              {20245, ProjParamLat1}},
    Check{is<ProjTypeEquidistantConic>,              parallelsMakeACone,                                                              {20256, ProjParamLat1}},
    Check{is<ProjTypeHotineObliqueMercator>,         [](Record r) { return flagByte<&PROJDATA::bUseAlpha>(r) != 1 || r.Alpha != 0; }, {20246, ProjParamAlpha}},
    Check{is<ProjTypeLambertConformalConic>,         [](Record r) { return std::fabs(r.Lat1 - r.Lat2) > 0.1 + 1e-9; },                {20247, ProjParamLat1}},
    Check{is<ProjTypeMercator>,                      [](Record r) { return std::fabs(std::fabs(r.Lat0) - 90) >= 0.01; },              {20251, ProjParamLat0}},
    Check{is<ProjTypeObliqueMercator>,               [](Record r) { return std::fabs(r.Lat1 - r.Lat2) >= 0.001; },                    {20253, ProjParamLat1}},
    Check{is<ProjTypeObliqueMercator>,               [](Record r) { return std::fabs(r.Lat1) >= 0.001; },                             {20254, ProjParamLat1}},
    Check{is<ProjTypeObliqueMercator>,               [](Record r) { return std::fabs(std::fabs(r.Lat1) - 90) >= 0.001; },             {20255, ProjParamLat2}},
    Check{[](Record r) { return !isStatePlane(r); }, [](Record r) { return r.Ellipsoid >= 0 && r.Ellipsoid < EllipsoidTypeNone; },    {20248, ProjParamEllipsoid}},
    Check{hasOwnEllipsoid,                           [](Record r) { return r.MajorRadius > 0; },                                      {20249, ProjParamMajorRadius}},
    Check{hasOwnEllipsoid,                           [](Record r) { return r.Flattening >= 0 && r.Flattening < 1; },                  {20250, ProjParamFlattening}},
};
// clang-format on

void describe(unsigned error, char* message) {
    if (auto const text = errorText(error))
        std::snprintf(message, messageSize, "%s", text);
    else
        std::snprintf(message, messageSize, "Unable to load error message text for error # %u", error);
}

} // namespace

RecordFault findFault(PROJDATA const& record) noexcept {
    if (record.Type == ProjTypeUnprojectedLatLong || record.Type == ProjTypeUndefined)
        return {};
    if (record.Type < 0 || record.Type >= ProjNumProjections())
        return {20230, ProjParamType};
    return withDefaultFloatingPoint([&] {
        for (auto const& check : checks)
            if (check.applies(record) && !check.holds(record))
                return check.fault;
        return RecordFault{};
    });
}

int ProjCheckParams(PROJDATA const* data, char* message, bool report) {
    LogPrintf("ProjCheckParams called with:\n");
    logRecord(data);
    if (message)
        *message = '\0';
    if (!data) {
        if (message)
            std::strcpy(message, "NULL pointer to projection parameters");
        return nullRecord;
    }
    auto const fault = findFault(*data);
    if (fault.parameter != ProjParamNone) {
        if (message)
            describe(fault.error, message);
        if (report)
            ReportError(sourceFile, __LINE__, fault.error, nullptr);
    }
    return fault.parameter;
}

} // namespace ZrProj
