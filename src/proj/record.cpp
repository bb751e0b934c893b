#include "proj/record.h"

#include "frame/log.h"

namespace ZrProj {
namespace {

char const* text(unsigned char flag) {
    return flag ? "true" : "false";
}
char const* known(char const* name) {
    return *name ? name : "UNKNOWN";
}

void logNumbers(PROJDATA const& r) {
    LogPrintf("Scale:           %f\n", r.Scale);
    LogPrintf("xOrg:            %f\n", r.xOrg);
    LogPrintf("yOrg:            %f\n", r.yOrg);
    LogPrintf("Lat0:            %f\n", r.Lat0);
    LogPrintf("Lon0:            %f\n", r.Lon0);
    LogPrintf("Lat1:            %f\n", r.Lat1);
    LogPrintf("Lat2:            %f\n", r.Lat2);
    LogPrintf("Lat3:            %f\n", r.Lat3);
    LogPrintf("Lon1:            %f\n", r.Lon1);
    LogPrintf("Lon2:            %f\n", r.Lon2);
    LogPrintf("Lon3:            %f\n", r.Lon3);
    LogPrintf("K0:              %f\n", r.K0);
}

} // namespace

formulas::ParametersInDegrees parametersOf(PROJDATA const& record) noexcept {
    return {.a = record.MajorRadius,
            .f = record.Flattening,
            .lat0 = record.Lat0,
            .lon0 = ProjUsesParam(record.Type, ProjParamLon0) ? +record.Lon0 : 0, // others are about Greenwich
            .lat1 = record.Lat1,
            .lon1 = record.Lon1,
            .lat2 = record.Lat2,
            .lon2 = record.Lon2,
            .k0 = record.K0,
            .azimuth = record.Alpha,
            .rectifiedAngle = record.Alpha,
            .useAzimuth = flagByte<&PROJDATA::bUseAlpha>(record) != 0,
            .rotate = flagByte<&PROJDATA::bRotate>(record) != 0,
            .offsetByU = flagByte<&PROJDATA::bUOffset>(record) != 0};
}

void logRecord(PROJDATA const* record) noexcept {
    if (!LogIsEnabled() || !record)
        return;
    auto const& r = *record;
    char type[64] = "", zone[64] = "", ellipsoid[64] = "";
    if (r.Type != ProjTypeUndefined)
        ProjGetProjectionInfo(r.Type, type);
    ProjGetStateZoneInfo(r.Zone, zone, nullptr);
    EllipsoidInfo(r.Ellipsoid, ellipsoid, nullptr, nullptr);
    LogPrintf("PROJDATA (Pointer=%p)\n", static_cast<void const*>(record));
    LogPrintf("Type:            %d (%s)\n", r.Type, known(type));
    logNumbers(r);
    LogPrintf("bSouth:          %s\n", text(flagByte<&PROJDATA::bSouth>(r)));
    LogPrintf("Zone:            %d (%s)\n", r.Zone, known(zone));
    LogPrintf("bUseAlpha:       %s\n", text(flagByte<&PROJDATA::bUseAlpha>(r)));
    LogPrintf("Alpha:           %f\n", r.Alpha);
    LogPrintf("bRotate:         %s\n", text(flagByte<&PROJDATA::bRotate>(r)));
    LogPrintf("bUOffset:        %s\n", text(flagByte<&PROJDATA::bUOffset>(r)));
    LogPrintf("Ellipsoid:       %d (%s)\n", r.Ellipsoid, known(ellipsoid));
    LogPrintf("MajorRadius:     %f\n", r.MajorRadius);
    LogPrintf("Flattening:      %f\n", r.Flattening);
    LogPrintf("iResult:         %d\n", r.iResult);
}

void logRecordBriefly(PROJDATA const* record) noexcept {
    if (!LogIsEnabled() || !record)
        return;
    auto const& r = *record;
    LogPrintf("PROJDATA:\n");
    LogPrintf("Type:   %d\n", r.Type);
    LogPrintf("Scale:  %f\n", r.Scale);
    LogPrintf("xOrg:   %f\n", r.xOrg);
    LogPrintf("yOrg:   %f\n", r.yOrg);
    LogPrintf("Lat0:   %f\n", r.Lat0);
    LogPrintf("Lon0:   %f\n", r.Lon0);
    LogPrintf("Lat1:   %f\n", r.Lat1);
    LogPrintf("Lon1:   %f\n", r.Lon1);
    LogPrintf("Lat2:   %f\n", r.Lat2);
    LogPrintf("Lon2:   %f\n", r.Lon2);
    LogPrintf("K0:     %f\n", r.K0);
    LogPrintf("bSouth: %s\n", text(flagByte<&PROJDATA::bSouth>(r)));
    LogPrintf("Zone:   %d\n", r.Zone);
    LogPrintf("Ellips: %d\n", r.Ellipsoid);
    LogPrintf("Radius: %f\n", r.MajorRadius);
    LogPrintf("Flat:   %f\n", r.Flattening);
}

} // namespace ZrProj
