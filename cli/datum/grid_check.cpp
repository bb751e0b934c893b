#include "cli/datum/grid_check.h"

#include "cli/datum/grid_fit.h"
#include "cli/text/number_field.h"
#include "cli/text/table.h"

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

std::string faultOf(GridFile& las, GridFile& los, Range const& x, Range const& y) {
    if (!(las.header() == los.header()))
        return "the two files have different headers; the library takes that of " + las.path();
    if (x.bad + y.bad > 0)
        return std::to_string(x.bad + y.bad) + " values are no numbers; points in their cells come out marked";
    Arrangement const found = arrangementOf(las, los, own);
    if (found == own)
        return "";
    return "the pair looks like " + std::string(found.words) +
           (found == usual ? "; \"zrproj grid import\" makes it into one for this library" : "");
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
