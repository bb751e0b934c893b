// A host program: converts one point to UTM and back, and hears of an error.
#include <zrproj/zrproj.h>

#include <cmath>
#include <cstdio>

namespace {

int reports = 0;

int ZR_STDCALL countReports(_ZRERRINFO const* info) {
    reports += info->wFlags & 0x4000 ? 1 : 0;
    return 1;
}

bool convertsThereAndBack() {
    ZrProj::PROJDATA data = ZrProj::PROJDATA();
    data.Type = ZrProj::ProjTypeUniversalTransverseMercator;
    data.Ellipsoid = ZrProj::EllipsoidTypeWgs84;
    data.Lon0 = ZrProj::ProjUTMZoneNumberToLon(17);
    ZrProj::CProjector utm(&data);
    ZrProj::PROJPOINT point = {-79.5, 43.5};
    bool const there = utm.Forward(&point, 1) && std::fabs(point.x - 621e3) < 1e3 && std::fabs(point.y - 4817e3) < 1e3;
    bool const back = utm.Inverse(&point, 1);
    return there && back && std::fabs(point.x + 79.5) < 1e-8 && std::fabs(point.y - 43.5) < 1e-8;
}

bool hearsOfErrors() {
    ZrCallerInstance host(countReports);
    ZrSetCallerInstancePtr(&host);
    ZrProj::PROJDATA data = ZrProj::PROJDATA();
    data.Type = ZrProj::ProjTypeTransverseMercator;
    data.Ellipsoid = ZrProj::EllipsoidTypeWgs84;
    data.Scale = -1;
    bool const refused = ZrProj::ProjCreateProjection(&data) == nullptr;
    ZrSetCallerInstancePtr(nullptr);
    return refused && reports == 1;
}

} // namespace

int main() {
    bool const converts = convertsThereAndBack();
    bool const hears = hearsOfErrors();
    std::printf("converts: %s, hears of errors: %s\n", converts ? "yes" : "no", hears ? "yes" : "no");
    return converts && hears ? 0 : 1;
}
