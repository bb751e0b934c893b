// Whatever an NTv2 file holds, it is refused with a place in it, or shifts points without harm, and what comes back
// goes to where it came from.
#include "datum/grid_shift.h"
#include "datum/ntv2.h"
#include "fuzz/input_file.h"
#include "host/mapped_file.h"

#include <array>
#include <cfloat>
#include <cmath>

using namespace ZrProj;
using namespace ZrProj::datum;

namespace {

/// Places in the middle of a grid, on its corner, between its nodes, and off it.
std::array<PROJPOINT, 4> placesOf(GridRow const& row) {
    double const west = row.east - row.width, north = row.south + row.height;
    return {{{(west + row.east) / 2, (row.south + north) / 2},
             {row.east, row.south},
             {row.east - 0.3 / row.perDx, north - 0.7 / row.perDy},
             {row.east + 1, north + 1}}};
}

bool isNear(PROJPOINT const& a, PROJPOINT const& b) {
    return std::fabs(std::remainder(a.x - b.x, 360.0)) <= 1e-9 && std::fabs(a.y - b.y) <= 1e-9;
}

/// Shifts places there and, for one grid alone, back. What is lost is lost.
void shiftPlaces(GridShift const& shift, GridSet const& set) {
    for (auto const& row : set.rows) {
        auto points = placesOf(row);
        require(!shift.forward(points.data(), 4).failed);
        auto origins = placesOf(row);
        require(!shift.inverse(origins.data(), 4).failed);
        for (std::size_t i = 0; i < 4 && set.rows.size() == 1; ++i)
            if (PROJPOINT again = origins[i]; again.x != DBL_MAX) {
                shift.forward(&again, 1);
                require(isNear(again, placesOf(row)[i]));
            }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    std::string const name = fuzzFile("in.gsb");
    std::filesystem::remove(name); // a mapped file must not be cut short
    writeFuzzFile(name, data, size);
    auto const opened = GridShift::openNtv2(name);
    MappedFile const file(name);
    auto const read = readNtv2(file.bytes());
    if (auto const* const problem = std::get_if<GridProblem>(&opened)) {
        require(std::holds_alternative<GridProblem>(read) && problem->reason.find(", at byte ") != std::string::npos);
        return 0;
    }
    auto const& set = std::get<GridSet>(read);
    require(!set.rows.empty() && set.rows.size() <= size / 240);
    shiftPlaces(std::get<GridShift>(opened), set);
    return 0;
}
