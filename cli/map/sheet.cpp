#include "cli/map/sheet.h"

#include "cli/model/parameters.h"
#include "cli/text/svg.h"

#include <algorithm>

namespace ZrProj::Command {
namespace {

/// A type with the parameters that the library's catalogue shows it by.
PROJDATA pictureOf(int type) {
    PROJDATA record{};
    record.Type = static_cast<ProjType>(type);
    record.Ellipsoid = EllipsoidTypeWgs84;
    record.Scale = record.K0 = 1;
    int parameter = ProjParamNone;
    double value = 0;
    for (std::size_t n = 0; zrproj_projection_picture(type, n, &parameter, &value) == ZRPROJ_OK; ++n)
        setNumber(record, parameter, value);
    return record;
}

std::vector<MapView> readViews() {
    std::vector<MapView> views;
    int type = ProjTypeUndefined;
    char const* key = nullptr;
    for (std::size_t n = 0; zrproj_projection_entry(n, &type, &key, nullptr) == ZRPROJ_OK; ++n)
        if (type != ProjTypeUnprojectedLatLong)
            views.push_back({key, pictureOf(type)});
    return views;
}

} // namespace

std::vector<MapView> const& mapViews() {
    static std::vector<MapView> const views = readViews();
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
        MapPicture const picture = drawMap({.record = view.record}, content, size / columns - 20, std::to_string(i));
        sheet.elements += placed(picture, static_cast<double>(i % columns) * cell + (cell - picture.width) / 2, rowTop);
        rowHeight = std::max(rowHeight, picture.height);
    }
    sheet.width = 10 * size;
    sheet.height = rowTop + rowHeight;
    return sheet;
}

} // namespace ZrProj::Command
