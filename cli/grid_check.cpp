#include "cli/grid_check.h"

#include "cli/number_field.h"
#include "cli/table.h"

#include <zrproj/datum.h>

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace ZrProj::Command {
namespace {

struct Range {
    float least = HUGE_VALF, greatest = -HUGE_VALF;
    std::uint64_t bad = 0; // values that are no numbers

    void add(float value) {
        if (!std::isfinite(value)) {
            ++bad;
            return;
        }
        least = std::min(least, value);
        greatest = std::max(greatest, value);
    }

    std::string text() const {
        if (least > greatest)
            return "no numbers";
        return numberText(std::round(least * 1e4) / 1e4) + " to " + numberText(std::round(greatest * 1e4) / 1e4) +
               " arcseconds";
    }
};

Range rangeOf(GridFile& file) {
    Range range;
    for (int row = 1; row <= file.header().rows; ++row) {
        std::vector<float> const& record = file.record(row);
        std::for_each(record.begin() + 1, record.end(), [&](float value) { range.add(value); });
    }
    return range;
}

std::string extent(double first, double last, float step) {
    return numberText(first) + " to " + numberText(last) + " degrees, every " + numberText(step);
}

/// How far the grids are, in arcseconds, from what three shifts of NAD 1927 say: taken as this system's, and as a pair
/// of the usual convention.
struct Fit {
    double own = 0, usual = 0;
};

Fit fitOf(GridFile& las, GridFile& los) {
    static DATUMXFORM const request{DatumTypeNad1927Conus, DatumTypeWorldGeodeticSystem1984, false, {}, {}};
    CDatumTransform transform(&request);
    GridHeader const& grid = las.header();
    int const rowStep = std::max(1, grid.rows / 16), columnStep = std::max(1, grid.columns / 16);
    Fit fit;
    for (int row = 1; row <= grid.rows; row += rowStep) {
        std::vector<float> const &x = las.record(row), &y = los.record(row);
        for (int column = 1; column <= grid.columns; column += columnStep) {
            DATUMPOINT const from{grid.xmin + (column - 1.0) * grid.dx, grid.ymin + (row - 1.0) * grid.dy};
            DATUMPOINT to = from;
            transform.Convert(&to, 1);
            double const east = 3600 * (to.x - from.x), north = 3600 * (to.y - from.y);
            auto const place = static_cast<std::size_t>(column);
            fit.own += std::hypot(x[place] - east, y[place] - north);
            fit.usual += std::hypot(x[place] - north, y[place] + east);
        }
    }
    return fit;
}

/// Whether a grid lies in the area of NAD 1927, where its shifts are known well enough.
bool isNorthAmerican(GridHeader const& grid) {
    return grid.xmin >= -140 && grid.east() <= -50 && grid.ymin >= 10 && grid.north() <= 60;
}

std::string faultOf(GridFile& las, GridFile& los, Range const& x, Range const& y) {
    if (!(las.header() == los.header()))
        return "the two files have different headers; the library takes that of " + las.path();
    if (x.bad + y.bad > 0)
        return std::to_string(x.bad + y.bad) + " values are no numbers; points in their cells come out marked";
    if (isNorthAmerican(las.header()))
        if (Fit const fit = fitOf(las, los); 2 * fit.usual < fit.own)
            return "the pair looks like one of the usual convention, with latitude shifts in .LAS and west positive; "
                   "\"zrproj grid import\" makes it into one for this library";
    return "";
}

} // namespace

void checkGrids(std::string const& path, Output& output) {
    GridFile las(path + ".LAS"), los(path + ".LOS");
    GridHeader const& grid = las.header();
    Range const x = rangeOf(las), y = rangeOf(los);
    Table table{{}, "ll", {}};
    table.rows = {{"Files", las.path()},
                  {"", los.path()},
                  {"Identification", las.identification()},
                  {"Grid", std::to_string(grid.columns) + " columns, " + std::to_string(grid.rows) + " rows"},
                  {"Longitudes", extent(grid.xmin, grid.east(), grid.dx)},
                  {"Latitudes", extent(grid.ymin, grid.north(), grid.dy)},
                  {"Added to longitudes (.LAS)", x.text() + ", east positive"},
                  {"Added to latitudes (.LOS)", y.text() + ", north positive"}};
    table.write(output);
    std::string const fault = faultOf(las, los, x, y);
    if (!fault.empty()) {
        output.flush();
        throw std::runtime_error(fault);
    }
}

} // namespace ZrProj::Command
