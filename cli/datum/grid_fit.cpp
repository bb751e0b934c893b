#include "cli/datum/grid_fit.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace ZrProj::Command {
namespace {

constexpr std::array arrangements{own, Arrangement{false, true, "one with longitude shifts in .LAS and west positive"},
                                  Arrangement{true, false, "one with latitude shifts in .LAS and east positive"},
                                  usual};

using Misfits = std::array<double, arrangements.size()>; // arcseconds, summed up

/// The three shifts that a grid is compared with; user defined where they are not known well enough.
DatumType shiftsOf(GridHeader const& grid) {
    if (grid.xmin >= -75 && grid.east() <= -60 && grid.ymin >= 15 && grid.north() <= 21)
        return DatumTypePuertoRico;
    bool const isNorthAmerican = grid.xmin >= -140 && grid.east() <= -50 && grid.ymin >= 10 && grid.north() <= 60;
    return isNorthAmerican ? DatumTypeNad1927Conus : DatumTypeUserDefined;
}

void add(Misfits& misfits, double las, double los, double east, double north) {
    for (std::size_t i = 0; i < arrangements.size(); ++i) {
        double const lon = arrangements[i].latitudesInLas ? los : las, lat = arrangements[i].latitudesInLas ? las : los;
        misfits[i] += std::hypot((arrangements[i].westPositive ? -lon : lon) - east, lat - north);
    }
}

Misfits misfitsOf(GridFile& las, GridFile& los, DatumType shifts) {
    DATUMXFORM const request{shifts, DatumTypeWorldGeodeticSystem1984, false, {}, {}};
    CDatumTransform transform(&request);
    GridHeader const& grid = las.header();
    int const rowStep = std::max(1, grid.rows / 16), columnStep = std::max(1, grid.columns / 16);
    Misfits misfits{};
    for (int row = 1; row <= grid.rows; row += rowStep) {
        std::vector<float> const &x = las.record(row), &y = los.record(row);
        for (int column = 1; column <= grid.columns; column += columnStep) {
            DATUMPOINT const from{grid.xmin + (column - 1.0) * grid.dx, grid.ymin + (row - 1.0) * grid.dy};
            DATUMPOINT to = from;
            transform.Convert(&to, 1);
            auto const place = static_cast<std::size_t>(column);
            add(misfits, x[place], y[place], 3600 * (to.x - from.x), 3600 * (to.y - from.y));
        }
    }
    return misfits;
}

} // namespace

Arrangement arrangementOf(GridFile& las, GridFile& los, Arrangement const& supposed) {
    DatumType const shifts = shiftsOf(las.header());
    if (shifts == DatumTypeUserDefined)
        return supposed;
    Misfits const misfits = misfitsOf(las, los, shifts);
    auto const best = static_cast<std::size_t>(std::min_element(misfits.begin(), misfits.end()) - misfits.begin());
    auto const asked =
        static_cast<std::size_t>(std::find(arrangements.begin(), arrangements.end(), supposed) - arrangements.begin());
    return 2 * misfits[best] < misfits[asked] ? arrangements[best] : supposed;
}

} // namespace ZrProj::Command
