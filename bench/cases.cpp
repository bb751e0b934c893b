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

std::vector<SystemCase> const systemTable{
    {"EPSG:4619", "EPSG:3006",  {"system/transverse-mercator",       {}, {10, 25, 55, 69},      "+proj=utm +zone=33 +ellps=GRS80"}},
    {"EPSG:4326", "EPSG:3857",  {"system/web-mercator",              {}, {-179, 179, -85, 85},  "+proj=webmerc +ellps=WGS84"}},
    {"EPSG:4289", "EPSG:28992", {"system/oblique-stereographic",     {}, {3.4, 7.2, 50.8, 53.5}, "+proj=sterea +lat_0=52.1561605555556 +lon_0=5.38763888888889 +k=0.9999079 +x_0=155000 +y_0=463000 +ellps=bessel"}},
    {"EPSG:4150", "EPSG:2056",  {"system/swiss",                     {}, {6, 10.4, 45.9, 47.8}, "+proj=somerc +lat_0=46.9524055555556 +lon_0=7.43958333333333 +k_0=1 +x_0=2600000 +y_0=1200000 +ellps=bessel"}},
    {"EPSG:4742", "EPSG:3375",  {"system/rectified-skew",            {}, {99, 105, 1.2, 6.7},   "+proj=omerc +no_uoff +lat_0=4 +lonc=102.25 +alpha=323.025796466667 +gamma=323.130102361111 +k=0.99984 +x_0=804671 +ellps=GRS80"}},
    {"EPSG:4156", "EPSG:5514",  {"system/krovak",                    {}, {12.1, 22.5, 47.8, 51}, "+proj=krovak +lat_0=49.5 +lon_0=24.8333333333333 +alpha=30.2881397527778 +k=0.9999 +ellps=bessel"}},
    {"EPSG:4326", "EPSG:8857",  {"system/equal-earth",               {}, {-179, 179, -89, 89},  "+proj=eqearth +ellps=WGS84"}},
    {"EPSG:4326", "EPSG:6933",  {"system/cylindrical-equal-area",    {}, {-179, 179, -85, 85},  "+proj=cea +lat_ts=30 +ellps=WGS84"}},
    {"EPSG:4686", "EPSG:6247",  {"system/colombia-urban",            {}, {-74.3, -73.9, 4.4, 4.9}, "+proj=col_urban +lat_0=4.68048611111111 +lon_0=-74.1465916666667 +x_0=92334.879 +y_0=109320.965 +h_0=2550 +ellps=GRS80"}},
    {"EPSG:4297", "EPSG:8441",  {"system/laborde",                   {}, {43, 50.5, -25.6, -12}, "+proj=labrd +lat_0=-18.9 +lon_0=46.4372291666667 +azi=18.9 +k=0.9995 +x_0=400000 +y_0=800000 +ellps=intl"}},
    {"EPSG:4272", "EPSG:27200", {"system/new-zealand-map-grid",      {}, {166.4, 178.6, -47.3, -34.4}, "+proj=nzmg +lat_0=-41 +lon_0=173 +x_0=2510000 +y_0=6023150 +ellps=intl"}},
    {"EPSG:4675", "EPSG:3993",  {"system/guam",                      {}, {144.6, 145, 13.2, 13.7}, "+proj=aeqd +guam +lat_0=13.4724663527778 +lon_0=144.748750705556 +x_0=50000 +y_0=50000 +ellps=clrk66"}},
    {"EPSG:4326", "EPSG:3031",  {"system/polar-stereographic",       {}, {-179, 179, -89, -60}, "+proj=stere +lat_0=-90 +lat_ts=-71 +ellps=WGS84"}},
    {"EPSG:4748", "EPSG:3139",  {"system/hyperbolic-cassini",        {}, {178.4, 179.9, -17, -16.1}, "+proj=cass +hyperbolic +lat_0=-16.25 +lon_0=179.333333333333 +x_0=251727.9155424 +y_0=334519.953768 +a=6378306.3696 +b=6356571.996 +units=link"}},
    {"EPSG:4312", "EPSG:4326",  {"datum/seven-parameters",           {}, {9.6, 17.1, 46.5, 49}, "+proj=pipeline +step +proj=cart +ellps=bessel +step +proj=helmert +x=577.326 +y=90.129 +z=463.919 +rx=5.137 +ry=1.474 +rz=5.297 +s=2.4232 +convention=position_vector +step +inv +proj=cart +ellps=WGS84"}},
    {"EPSG:4312", "EPSG:32633", {"datum/seven-parameters-and-map",   {}, {12, 17.1, 46.5, 49},  "+proj=pipeline +step +proj=cart +ellps=bessel +step +proj=helmert +x=577.326 +y=90.129 +z=463.919 +rx=5.137 +ry=1.474 +rz=5.297 +s=2.4232 +convention=position_vector +step +inv +proj=cart +ellps=WGS84 +step +proj=utm +zone=33 +ellps=WGS84"}},
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

std::vector<SystemCase> const& systemCases() {
    return systemTable;
}

} // namespace ZrProj::bench
