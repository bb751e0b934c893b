#include "cli/files/grids.h"

#include "cli/files/ctable_file.h"
#include "cli/text/numbers.h"
#include "cli/text/output.h"
#include "cli/text/text.h"
#include "cli/text/usage_error.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>
#include <stdexcept>
#include <system_error>
#include <tuple>
#include <utility>

namespace ZrProj::Command {

GridFile::GridFile(std::string name) : path(std::move(name)), header{} {
    header.size = sizeof header;
    if (zrproj_grid_read(path.c_str(), &header) != ZRPROJ_OK)
        throw UsageError(zrproj_message());
}

std::vector<float> GridFile::row(int number) const {
    std::vector<float> shifts(static_cast<std::size_t>(header.columns));
    if (zrproj_grid_row(path.c_str(), number, shifts.data(), shifts.size()) != ZRPROJ_OK)
        throw std::runtime_error(zrproj_message());
    return shifts;
}

namespace {

bool haveOneGrid(GridFile const& one, GridFile const& other) {
    auto const shape = [](zrproj_grid const& g) { return std::tuple(g.columns, g.rows, g.west, g.south, g.dx, g.dy); };
    return shape(one.header) == shape(other.header);
}

constexpr std::array arrangements{own, Arrangement{false, true, "one with longitude shifts in .LAS and west positive"},
                                  Arrangement{true, false, "one with latitude shifts in .LAS and east positive"},
                                  usual};

using Misfits = std::array<double, arrangements.size()>; // arcseconds, summed up

/// The three shifts that a grid is compared with; user defined where they are not known well enough.
DatumType shiftsOf(zrproj_grid const& grid) {
    if (grid.west >= -75 && grid.east <= -60 && grid.south >= 15 && grid.north <= 21)
        return DatumTypePuertoRico;
    bool const isNorthAmerican = grid.west >= -140 && grid.east <= -50 && grid.south >= 10 && grid.north <= 60;
    return isNorthAmerican ? DatumTypeNad1927Conus : DatumTypeUserDefined;
}

void add(Misfits& misfits, double las, double los, double east, double north) {
    for (std::size_t i = 0; i < arrangements.size(); ++i) {
        double const lon = arrangements[i].latitudesInLas ? los : las, lat = arrangements[i].latitudesInLas ? las : los;
        misfits[i] += std::hypot((arrangements[i].westPositive ? -lon : lon) - east, lat - north);
    }
}

Misfits misfitsOf(GridFile const& las, GridFile const& los, DatumType shifts) {
    DATUMXFORM const request{shifts, DatumTypeWorldGeodeticSystem1984, false, {}, {}};
    CDatumTransform transform(&request);
    zrproj_grid const& grid = las.header;
    int const rowStep = std::max(1, grid.rows / 16), columnStep = std::max(1, grid.columns / 16);
    Misfits misfits{};
    for (int row = 1; row <= grid.rows; row += rowStep) {
        std::vector<float> const x = las.row(row), y = los.row(row);
        for (int column = 1; column <= grid.columns; column += columnStep) {
            DATUMPOINT const from{grid.west + (column - 1.0) * grid.dx, grid.south + (row - 1.0) * grid.dy};
            DATUMPOINT to = from;
            transform.Convert(&to, 1);
            auto const index = static_cast<std::size_t>(column) - 1;
            add(misfits, x[index], y[index], 3600 * (to.x - from.x), 3600 * (to.y - from.y));
        }
    }
    return misfits;
}

} // namespace

Arrangement arrangementOf(GridFile const& las, GridFile const& los, Arrangement const& supposed) {
    DatumType const shifts = shiftsOf(las.header);
    if (shifts == DatumTypeUserDefined)
        return supposed;
    Misfits const misfits = misfitsOf(las, los, shifts);
    auto const best = static_cast<std::size_t>(std::min_element(misfits.begin(), misfits.end()) - misfits.begin());
    auto const asked =
        static_cast<std::size_t>(std::find(arrangements.begin(), arrangements.end(), supposed) - arrangements.begin());
    return 2 * misfits[best] < misfits[asked] ? arrangements[best] : supposed;
}

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

Range rangeOf(GridFile const& file) {
    Range range;
    for (int row = 1; row <= file.header.rows; ++row)
        for (float const value : file.row(row))
            range.add(value);
    return range;
}

std::string extent(double first, double last, double step) {
    return numberText(first) + " to " + numberText(last) + " degrees, every " + numberText(step);
}

std::string faultOf(GridFile const& las, GridFile const& los, Range const& x, Range const& y) {
    if (!haveOneGrid(las, los))
        return "the two files have different headers; the library takes that of " + las.path;
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
    zrproj_grid const& grid = las.header;
    Range const x = rangeOf(las), y = rangeOf(los);
    Table table{{}, "ll", {}};
    table.rows = {{"Files", las.path},
                  {"", los.path},
                  {"Identification", grid.identification},
                  {"Grid", std::to_string(grid.columns) + " columns, " + std::to_string(grid.rows) + " rows"},
                  {"Longitudes", extent(grid.west, grid.east, grid.dx)},
                  {"Latitudes", extent(grid.south, grid.north, grid.dy)},
                  {"Added to longitudes (.LAS)", x.text() + ", east positive"},
                  {"Added to latitudes (.LOS)", y.text() + ", north positive"}};
    table.write(output);
    std::string const fault = faultOf(las, los, x, y);
    if (!fault.empty()) {
        output.flush();
        throw std::runtime_error(fault);
    }
}

namespace {

/// The file of a pair with that ending, in small letters or capitals.
std::string findFile(std::string const& path, std::string_view small, std::string_view capital) {
    std::string const name = path + std::string(small);
    return std::filesystem::exists(name) ? name : path + std::string(capital);
}

/// All shifts of a file, multiplied by `sign`.
std::vector<float> shiftsIn(GridFile const& file, float sign) {
    std::vector<float> shifts;
    for (int row = 1; row <= file.header.rows; ++row)
        for (float const value : file.row(row))
            shifts.push_back(sign * value);
    return shifts;
}

/// Refuses files that would be overwritten by what is made of them, and those that are no pair to be imported.
void checkPair(GridFile const& latitudes, GridFile const& longitudes, std::array<std::string, 2> const& destinations) {
    std::error_code error; // what is not there is no file's equal
    for (GridFile const* source : {&latitudes, &longitudes})
        for (std::string const& name : destinations)
            if (std::filesystem::equivalent(source->path, name, error))
                throw UsageError(source->path + " is itself what would be written; give another --to or --name");
    if (!haveOneGrid(latitudes, longitudes))
        throw UsageError("the headers of " + latitudes.path + " and " + longitudes.path + " differ; they are no pair");
    Arrangement const found = arrangementOf(latitudes, longitudes, usual);
    if (!(found == usual))
        throw UsageError(latitudes.path + " and " + longitudes.path + " look like " + std::string(found.words) +
                         (found == own ? "; copy them as they are" : ", which cannot be imported"));
}

void refuseWhatIsThere(GridImport const& job) {
    for (std::string const& name : {job.destination + ".LAS", job.destination + ".LOS"})
        if (!job.replace && std::filesystem::exists(name))
            throw UsageError(name + " is there already; --replace replaces it");
}

void writePair(std::string const& path, zrproj_grid const& header, std::vector<float> const& east,
               std::vector<float> const& north) {
    if (zrproj_grid_write(path.c_str(), &header, east.data(), north.data(), east.size()) != ZRPROJ_OK)
        throw std::runtime_error(zrproj_message());
}

} // namespace

void importGrids(GridImport const& job) {
    GridFile latitudes(findFile(job.source, ".las", ".LAS")), longitudes(findFile(job.source, ".los", ".LOS"));
    checkPair(latitudes, longitudes, {job.destination + ".LAS", job.destination + ".LOS"});
    refuseWhatIsThere(job);
    writePair(job.destination, latitudes.header, shiftsIn(longitudes, -1), shiftsIn(latitudes, 1));
}

void importCtable(GridImport const& job) {
    refuseWhatIsThere(job);
    CtableFile const table(job.source);
    writePair(job.destination, table.header, table.east, table.north);
}

std::string gridDirectory() {
    return std::filesystem::read_symlink("/proc/self/exe").parent_path().string() + '/';
}

} // namespace ZrProj::Command
