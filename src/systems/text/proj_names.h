// Ellipsoids, datums, prime meridians and units as PROJ strings call them.
#pragma once

#include "systems/definition.h"
#include "systems/text/ellipsoid_shape.h"

#include <string_view>

namespace ZrProj::systems {

struct EllipsoidRow {
    std::string_view key;
    double semiMajor, inverseFlattening; // 0: a sphere
    std::string_view name;
    Code code;
};

struct DatumRow {
    std::string_view key, ellipsoid, name;
    Code code;
    std::string_view system; // the geographic system on it
    Code systemCode;
};

struct MeridianRow {
    std::string_view key;
    double longitude; // degrees
    std::string_view name;
    Code code;
};

struct UnitKeyRow {
    std::string_view key;
    double metres;
};

constexpr double dms(double degrees, double minutes, double seconds) {
    return degrees + (minutes * 60 + seconds) / 3600;
}

// clang-format off
inline constexpr EllipsoidRow ellipsoidRows[] = {
    {"MERIT",     6378137,      298.257,                            "MERIT 1983",                      0},
    {"SGS85",     6378136,      298.257,                            "Soviet Geodetic System 85",       0},
    {"GRS80",     6378137,      298.257222101,                      "GRS 1980",                        7019},
    {"IAU76",     6378140,      298.257,                            "IAG 1975",                        7049},
    {"airy",      6377563.396,  299.3249646,                        "Airy 1830",                       7001},
    {"APL4.9",    6378137,      298.25,                             "Appl. Physics. 1965",             0},
    {"NWL9D",     6378145,      298.25,                             "NWL 9D",                          7025},
    {"mod_airy",  6377340.189,  inverseFlattening(6377340.189, 6356034.446), "Airy Modified 1849",              0},
    {"andrae",    6377104.43,   300.0,                              "Andrae 1876 (Den., Iclnd.)",      0},
    {"danish",    6377019.2563, 300.0,                              "Andrae 1876 (Denmark, Iceland)",  0},
    {"aust_SA",   6378160,      298.25,                             "Australian National Spheroid",    7003},
    {"GRS67",     6378160,      298.2471674270,                     "GRS 1967",                        7036},
    {"GSK2011",   6378136.5,    298.2564151,                        "GSK-2011",                        1025},
    {"bessel",    6377397.155,  299.1528128,                        "Bessel 1841",                     7004},
    {"bess_nam",  6377483.865,  299.1528128,                        "Bessel 1841 (Namibia)",           0},
    {"clrk66",    6378206.4,    inverseFlattening(6378206.4, 6356583.8),     "Clarke 1866",                     7008},
    {"clrk80",    6378249.145,  293.4663,                           "Clarke 1880 (Arc)",               7013},
    {"clrk80ign", 6378249.2,    293.4660212936269,                  "Clarke 1880 (IGN)",               7011},
    {"CPM",       6375738.7,    334.29,                             "Comm. des Poids et Mesures 1799", 0},
    {"delmbr",    6376428,      311.5,                              "Delambre 1810 (Belgium)",         0},
    {"engelis",   6378136.05,   298.2566,                           "Engelis 1985",                    0},
    {"evrst30",   6377276.345,  300.8017,                           "Everest 1830 (1937 Adjustment)",  7015},
    {"evrst48",   6377304.063,  300.8017,                           "Everest 1830 Modified",           7018},
    {"evrst56",   6377301.243,  300.8017,                           "Everest 1956",                    0},
    {"evrst69",   6377295.664,  300.8017,                           "Everest 1830 (RSO 1969)",         7056},
    {"evrstSS",   6377298.556,  300.8017,                           "Everest 1830 (1967 Definition)",  7016},
    {"fschr60",   6378166,      298.3,                              "Fischer (Mercury Datum) 1960",    0},
    {"fschr60m",  6378155,      298.3,                              "Modified Fischer 1960",           0},
    {"fschr68",   6378150,      298.3,                              "Fischer 1968",                    0},
    {"helmert",   6378200,      298.3,                              "Helmert 1906",                    7020},
    {"hough",     6378270,      297.,                               "Hough 1960",                      7053},
    {"intl",      6378388,      297.,                               "International 1924",              7022},
    {"krass",     6378245,      298.3,                              "Krassowsky 1940",                 7024},
    {"kaula",     6378163,      298.24,                             "Kaula 1961",                      0},
    {"lerch",     6378139,      298.257,                            "Lerch 1979",                      0},
    {"mprts",     6397300,      191.,                               "Maupertius 1738",                 0},
    {"new_intl",  6378157.5,    inverseFlattening(6378157.5, 6356772.2),     "New International 1967",          0},
    {"plessis",   6376523,      inverseFlattening(6376523.0, 6355863.),      "Plessis 1817 (France)",           0},
    {"PZ90",      6378136,      298.25784,                          "PZ-90",                           7054},
    {"SEasia",    6378155,      inverseFlattening(6378155.0, 6356773.3205),  "Southeast Asia",                  0},
    {"walbeck",   6376896,      inverseFlattening(6376896.0, 6355834.8467),  "Walbeck",                         0},
    {"WGS60",     6378165,      298.3,                              "WGS 60",                          0},
    {"WGS66",     6378145,      298.25,                             "WGS 66",                          0},
    {"WGS72",     6378135,      298.26,                             "WGS 72",                          7043},
    {"WGS84",     6378137,      298.257223563,                      "WGS 84",                          7030},
    {"sphere",    6370997,      0,                                  "Clarke 1866 Authalic Sphere",     7052},
};

inline constexpr DatumRow datumRows[] = {
    {"WGS84",         "WGS84",     "World Geodetic System 1984",            6326, "WGS 84",   4326},
    {"NAD83",         "GRS80",     "North American Datum 1983",             6269, "NAD83",    4269},
    {"NAD27",         "clrk66",    "North American Datum 1927",             6267, "NAD27",    4267},
    {"GGRS87",        "GRS80",     "Greek Geodetic Reference System 1987",  6121, "GGRS87",   4121},
    {"potsdam",       "bessel",    "Deutsches Hauptdreiecksnetz",           6314, "DHDN",     4314},
    {"carthage",      "clrk80ign", "Carthage",                              6223, "Carthage", 4223},
    {"hermannskogel", "bessel",    "Militar-Geographische Institut",        6312, "MGI",      4312},
    {"ire65",         "mod_airy",  "TM65",                                  6299, "TM65",     4299},
    {"nzgd49",        "intl",      "New Zealand Geodetic Datum 1949",       6272, "NZGD49",   4272},
    {"OSGB36",        "airy",      "Ordnance Survey of Great Britain 1936", 6277, "OSGB36",   4277},
};

inline constexpr MeridianRow meridianRows[] = {
    {"greenwich",  0,                   "Greenwich",  8901},
    {"lisbon",     -dms(9, 7, 54.862),  "Lisbon",     8902},
    {"paris",      2.5969213 * 0.9,     "Paris",      8903},
    {"bogota",     -dms(74, 4, 51.3),   "Bogota",     8904},
    {"madrid",     -dms(3, 41, 16.58),    "Madrid",     0},
    {"rome",       dms(12, 27, 8.4),    "Rome",       8906},
    {"bern",       dms(7, 26, 22.5),    "Bern",       8907},
    {"jakarta",    dms(106, 48, 27.79), "Jakarta",    8908},
    {"ferro",      -dms(17, 40, 0),     "Ferro",      8909},
    {"brussels",   dms(4, 22, 4.71),    "Brussels",   8910},
    {"stockholm",  dms(18, 3, 29.8),    "Stockholm",  8911},
    {"athens",     dms(23, 42, 58.815), "Athens",     8912},
    {"oslo",       dms(10, 43, 22.5),   "Oslo",       8913},
    {"copenhagen", dms(12, 34, 40.35),  "Copenhagen", 0},
};

inline constexpr UnitKeyRow unitRows[] = {
    {"m",      1},
    {"km",     1000},
    {"dm",     0.1},
    {"cm",     0.01},
    {"mm",     0.001},
    {"ft",     0.3048},
    {"us-ft",  12 / 39.37},
    {"yd",     0.9144},
    {"us-yd",  36 / 39.37},
    {"in",     0.0254},
    {"us-in",  1 / 39.37},
    {"mi",     1609.344},
    {"us-mi",  63360 / 39.37},
    {"kmi",    1852},
    {"fath",   1.8288},
    {"ch",     20.1168},
    {"us-ch",  792 / 39.37},
    {"link",   0.201168},
    {"ind-yd", 0.91439523},
    {"ind-ft", 0.30479841},
    {"ind-ch", 20.11669506},
};
// clang-format on

} // namespace ZrProj::systems
