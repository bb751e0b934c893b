#include "proj/record.h"

#include "formulas/converter.h"
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

PROJDATA withRadians(PROJDATA const& record) noexcept {
    auto const radians = [](double degrees) { return degrees * formulas::degree; };
    PROJDATA work = record;
    work.Lat0 = radians(record.Lat0);
    work.Lon0 = radians(record.Lon0);
    work.Lat1 = radians(record.Lat1);
    work.Lat2 = radians(record.Lat2);
    work.Lat3 = radians(record.Lat3);
    work.Lon1 = radians(record.Lon1);
    work.Lon2 = radians(record.Lon2);
    work.Lon3 = radians(record.Lon3);
    work.Alpha = radians(record.Alpha);
    return work;
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
