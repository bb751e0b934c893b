#include "systems/text/bound.h"

#include <algorithm>
#include <cmath>

namespace ZrProj::systems {

namespace {

constexpr double arcsecond = 1.0 / 3600; // degrees

enum class Way { none, translations, positionVector, coordinateFrame, grids };

struct WayRow {
    std::string_view beginning; // of the method's name
    Way way;
};

constexpr WayRow wayRows[] = {
    {"Geocentric translations", Way::translations},
    {"Position Vector", Way::positionVector},
    {"Coordinate Frame", Way::coordinateFrame},
    {"NTv2", Way::grids},
    {"NADCON", Way::grids},
    {"NTv1", Way::grids},
};

Way wayOf(std::string_view name) {
    auto const found =
        std::ranges::find_if(wayRows, [&](WayRow const& row) { return name.starts_with(row.beginning); });
    return found == std::end(wayRows) ? Way::none : found->way;
}

/// In metres, arcseconds and parts per million. Without a unit, a rotation is in arcseconds and the scale is the whole
/// factor, which differs little from 1.
double binding(StatedParameter const& stated, std::size_t at) {
    if (at < 3)
        return stated.value * (stated.factor > 0 ? stated.factor : 1);
    if (at < 6)
        return stated.factor > 0 ? stated.value * (stated.factor / arcsecond) : stated.value;
    bool const wholeFactor = stated.factor == 0 || stated.factor == 1;
    return (wholeFactor ? stated.value - 1 : stated.value * stated.factor) * 1e6;
}

bool isBinding(BindingRow const& row, StatedParameter const& stated) {
    return stated.code != 0 ? stated.code == row.code : sameName(stated.name, row.name);
}

} // namespace

bool isWgs84(std::string_view name) {
    return sameName(name, "WGS 84") || sameName(name, "GCS_WGS_1984");
}

void takeBinding(Datum& datum, StatedMethod const& stated, std::string const& grids, Complaint& complaint) {
    Way const way = wayOf(stated.name);
    if (way == Way::none)
        return complaint.unsupported(stated.offset, "the transformation " + stated.name + " is not supported");
    if (way == Way::grids) {
        if (grids.empty())
            complaint.malformed(stated.offset, "the transformation lacks its grid file");
        datum.grids = grids;
        return;
    }
    ToWgs84 shift{};
    for (StatedParameter const& parameter : stated.parameters) {
        auto const row =
            std::ranges::find_if(bindingRows, [&](BindingRow const& each) { return isBinding(each, parameter); });
        if (row == std::end(bindingRows))
            return complaint.unsupported(parameter.offset,
                                         "the transformation's parameter " + parameter.name + " is not supported");
        auto const at = static_cast<std::size_t>(row - std::begin(bindingRows));
        double const sign = way == Way::coordinateFrame && at >= 3 && at < 6 ? -1 : 1;
        shift[at] = sign * binding(parameter, at);
    }
    datum.toWgs84 = shift;
}

} // namespace ZrProj::systems
