#include "cases.h"

#include "proj/projection_table.h"
#include "support/words.h"

#include <fstream>
#include <sstream>
#include <stdexcept>

namespace ZrProj::bench {
namespace {

/// The cases of a file of tests/data/projections: its lines "bench [VARIANT] | RECORD | BOX | PROJ".
void append(std::vector<Case>& cases, std::string const& key) {
    std::ifstream in(ZRPROJ_BENCH_DATA "/projections/" + key + ".txt");
    if (!in)
        throw std::runtime_error("no file of the projection " + key);
    for (std::string line; std::getline(in, line);) {
        if (!line.starts_with("bench"))
            continue;
        auto const fields = test::fieldsOf(line);
        Case result{key, test::recordOf(fields.at(1)), {}, fields.at(3)};
        if (auto const blank = fields[0].find(' '); blank != std::string::npos)
            result.name += '/' + fields[0].substr(blank + 1);
        std::istringstream box(fields[2]);
        box >> result.box.west >> result.box.east >> result.box.south >> result.box.north;
        cases.push_back(result);
    }
}

// da and df are WGS 84's figures less the datum's; a height of 0 is what zrproj takes.
// clang-format off
std::vector<DatumCase> const datumTable{
    {DatumTypeEuropean1950Mean, {"Molodensky", {}, {-10, 30, 35, 70}, "+proj=molodensky +ellps=intl +dx=-87 +dy=-98 +dz=-121 +da=-251 +df=-1.4192702255886366e-05"}},
    {DatumTypeDhdnBursaWolf,    {"Bursa-Wolf", {}, {5, 15, 47, 55}, "+proj=pipeline +step +proj=cart +a=6377397.155 +rf=299.152815351 +step +proj=helmert +x=582 +y=105 +z=414 +rx=1.04 +ry=0.35 +rz=-3.08 +s=8.3 +convention=position_vector +step +inv +proj=cart +ellps=WGS84"}},
};
// clang-format on

} // namespace

std::vector<Case> const& cases() {
    static auto const all = [] {
        std::vector<Case> result;
        for (auto const& row : projectionTable)
            if (row.type != ProjTypeUnprojectedLatLong)
                append(result, row.key);
        return result;
    }();
    return all;
}

std::vector<DatumCase> const& datumCases() {
    return datumTable;
}

} // namespace ZrProj::bench
