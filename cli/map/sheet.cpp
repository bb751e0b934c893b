#include "cli/map/sheet.h"

#include "cli/model/parameters.h"
#include "cli/text/svg.h"

#include <algorithm>
#include <array>

namespace ZrProj::Command {
namespace {

/// The parameters that the views set, in degrees; the others are 0.
struct Parameters {
    double Lat0 = 0, Lon0 = 0, Lat1 = 0, Lat2 = 0, Lon1 = 0, Lon2 = 0;
    double Alpha = 0;
    StateZoneType Zone = StateZoneTypeAlabamaEast;
};

constexpr MapView view(ProjType type, char const* key, Parameters const& set) {
    MapView result{key, {}};
    PROJDATA& record = result.record;
    record.Type = type;
    record.Ellipsoid = EllipsoidTypeWgs84;
    record.Scale = record.K0 = 1;
    record.Lat0 = set.Lat0;
    record.Lon0 = set.Lon0;
    record.Lat1 = set.Lat1;
    record.Lat2 = set.Lat2;
    record.Lon1 = set.Lon1;
    record.Lon2 = set.Lon2;
    record.Alpha = set.Alpha;
    record.bUseAlpha = record.bRotate = record.bUOffset = type == ProjTypeHotineObliqueMercator;
    record.Zone = set.Zone;
    return result;
}

// clang-format off
constexpr std::array views{
    view(ProjTypeMercator,                    "mercator",                {}),
    view(ProjTypeAlbersEqualAreaConic,        "albers",                  {.Lat0 = 30, .Lon0 = 10, .Lat1 = 20, .Lat2 = 60}),
    view(ProjTypeMillerCylindrical,           "miller",                  {}),
    view(ProjTypeUniversalTransverseMercator, "utm",                     {.Lon0 = 9}),
    view(ProjTypeLambertConformalConic,       "lambert-conformal-conic", {.Lat0 = 40, .Lon0 = -96, .Lat1 = 20, .Lat2 = 60}),
    view(ProjTypeStereographic,               "stereographic",           {.Lat0 = 90}),
    view(ProjTypeOrthographic,                "orthographic",            {.Lat0 = 35, .Lon0 = 20}),
    view(ProjTypeMollweide,                   "mollweide",               {}),
    view(ProjTypeStatePlane1927,              "state-plane-1927",        {.Zone = StateZoneTypeAlaska1}),
    view(ProjTypeStatePlane1983,              "state-plane-1983",        {.Zone = StateZoneTypeCaliforniaI}),
    view(ProjTypePolyconic,                   "polyconic",               {.Lon0 = -96}),
    view(ProjTypeHotineObliqueMercator,       "hotine",                  {.Lat0 = 40, .Lon0 = 10, .Alpha = 45}),
    view(ProjTypeEquidistantCylindrical,      "equidistant-cylindrical", {}),
    view(ProjTypeRobinson,                    "robinson",                {}),
    view(ProjTypeVanDerGrinten,               "van-der-grinten",         {}),
    view(ProjTypeCassini,                     "cassini",                 {.Lon0 = 20}),
    view(ProjTypeTransverseMercator,          "transverse-mercator",     {.Lon0 = 20}),
    view(ProjTypeGaussKruger,                 "gauss-kruger",            {.Lon0 = 105}),
    view(ProjTypeSinusoidal,                  "sinusoidal",              {}),
    view(ProjTypeLambertAzimuthalEqualArea,   "lambert-azimuthal",       {.Lon0 = -100, .Lat1 = 45}),
    view(ProjTypeBonne,                       "bonne",                   {.Lat1 = 45}),
    view(ProjTypeRobinsonSterling,            "robinson-sterling",       {}),
    view(ProjTypeEckertIV,                    "eckert-4",                {}),
    view(ProjTypeEckertVI,                    "eckert-6",                {}),
    view(ProjTypeObliqueMercator,             "oblique-mercator",        {.Lat1 = 45, .Lat2 = -10, .Lon1 = -100, .Lon2 = 20}),
    view(ProjTypeEquidistantConic,            "equidistant-conic",       {.Lat0 = 40, .Lon0 = 90, .Lat1 = 20, .Lat2 = 60}),
    view(ProjTypeGnomonic,                    "gnomonic",                {.Lon0 = -30, .Lat1 = 50}),
    view(ProjTypeAzimuthalEquidistant,        "azimuthal-equidistant",   {.Lon0 = 150, .Lat1 = -35}),
};
// clang-format on

} // namespace

std::span<MapView const> mapViews() {
    return views;
}

namespace {

constexpr std::size_t columns = 4;

std::string placed(MapPicture const& picture, double x, double y) {
    return "<g transform=\"translate(" + std::to_string(wholeUnits(x)) + ' ' + std::to_string(wholeUnits(y)) +
           ")\">\n" + picture.elements + "</g>\n";
}

} // namespace

MapPicture drawSheet(MapContent content, double size) {
    content.bounds.reset();
    MapPicture sheet{0, 0, ""};
    double rowTop = 0, rowHeight = 0;
    double const cell = 10 * size / columns;
    for (std::size_t i = 0; i < mapViews().size(); ++i) {
        MapView const& view = mapViews()[i];
        if (i % columns == 0) {
            rowTop += rowHeight;
            rowHeight = 0;
        }
        content.title = projectionName(view.record.Type);
        MapPicture const picture = drawMap(view.record, content, size / columns - 20, std::to_string(i));
        sheet.elements += placed(picture, static_cast<double>(i % columns) * cell + (cell - picture.width) / 2, rowTop);
        rowHeight = std::max(rowHeight, picture.height);
    }
    sheet.width = 10 * size;
    sheet.height = rowTop + rowHeight;
    return sheet;
}

} // namespace ZrProj::Command
