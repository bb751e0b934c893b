// What the methods and their parameters are called where definitions do not use the register's names: in the first
// generation of well-known text as GDAL and as ESRI write it, and in PROJ strings.
//
// A row has its parameters in the register's order of the method:
//     name            its name
//     name?value      its name; left out, it has the value, which is a number or another parameter's name
//     =value          not said; it has the value, which is a number or another parameter's name
// and after them what stands beside them:
//     name=value      written, and read only where it has the value
//     name=pole       the latitude of the pole on the side of the standard parallel
// What a row does not name may stand in a text with a value that says nothing: 0, or 1 of a scale. A method has its
// first row for writing and all of them for reading; of several rows of one name the first that fits is taken.
#pragma once

#include "systems/methods.h"

#include <string_view>

namespace ZrProj::systems {

struct SpellingRow {
    Method method;
    std::string_view name; // in PROJ strings with the options that belong to it
    std::string_view parameters;
};

// clang-format off
inline constexpr SpellingRow gdalSpellings[] = {
    {Method::equidistantCylindrical,       "Equirectangular",                     "standard_parallel_1?0 central_meridian false_easting false_northing"},
    {Method::equidistantCylindricalSphere, "Equirectangular",                     "standard_parallel_1?0 central_meridian false_easting false_northing"},
    {Method::krovak,                       "Krovak",                              "latitude_of_center longitude_of_center azimuth pseudo_standard_parallel_1 scale_factor false_easting false_northing"},
    {Method::lambertConic1,                "Lambert_Conformal_Conic_1SP",         "latitude_of_origin central_meridian scale_factor false_easting false_northing"},
    {Method::lambertConic2,                "Lambert_Conformal_Conic_2SP",         "latitude_of_origin central_meridian standard_parallel_1 standard_parallel_2 false_easting false_northing"},
    {Method::lambertConicBelgium,          "Lambert_Conformal_Conic_2SP_Belgium", "latitude_of_origin central_meridian standard_parallel_1 standard_parallel_2 false_easting false_northing"},
    {Method::mercatorA,                    "Mercator_1SP",                        "latitude_of_origin central_meridian scale_factor false_easting false_northing"},
    {Method::mercatorB,                    "Mercator_2SP",                        "standard_parallel_1 central_meridian false_easting false_northing"},
    {Method::cassini,                      "Cassini_Soldner",                     "latitude_of_origin central_meridian false_easting false_northing"},
    {Method::transverseMercator,           "Transverse_Mercator",                 "latitude_of_origin central_meridian scale_factor false_easting false_northing"},
    {Method::transverseMercatorSouth,      "Transverse_Mercator_South_Orientated", "latitude_of_origin central_meridian scale_factor false_easting false_northing"},
    {Method::obliqueStereographic,         "Oblique_Stereographic",               "latitude_of_origin central_meridian scale_factor false_easting false_northing"},
    {Method::polarStereographicA,          "Polar_Stereographic",                 "latitude_of_origin central_meridian scale_factor false_easting false_northing"},
    {Method::polarStereographicB,          "Polar_Stereographic",                 "latitude_of_origin central_meridian false_easting false_northing"},
    {Method::newZealandMapGrid,            "New_Zealand_Map_Grid",                "latitude_of_origin central_meridian false_easting false_northing"},
    {Method::hotineA,                      "Hotine_Oblique_Mercator",             "latitude_of_center longitude_of_center azimuth rectified_grid_angle scale_factor false_easting false_northing"},
    {Method::hotineB,                      "Hotine_Oblique_Mercator_Azimuth_Center", "latitude_of_center longitude_of_center azimuth rectified_grid_angle scale_factor false_easting false_northing"},
    {Method::hotineB,                      "Swiss_Oblique_Cylindrical",           "latitude_of_center central_meridian =90 =90 scale_factor false_easting false_northing"},
    {Method::hotineTwoPoints,              "Hotine_Oblique_Mercator_Two_Point_Natural_Origin", "latitude_of_center latitude_of_point_1 longitude_of_point_1 latitude_of_point_2 longitude_of_point_2 scale_factor false_easting false_northing"},
    {Method::laborde,                      "Laborde_Oblique_Mercator",            "latitude_of_center longitude_of_center azimuth scale_factor false_easting false_northing"},
    {Method::tunisiaMiningGrid,            "Tunisia_Mapping_Grid",                "latitude_of_origin central_meridian false_easting false_northing"},
    {Method::polyconic,                    "Polyconic",                           "latitude_of_origin central_meridian false_easting false_northing"},
    {Method::lambertAzimuthalSphere,       "Lambert_Azimuthal_Equal_Area",        "latitude_of_center longitude_of_center false_easting false_northing"},
    {Method::lambertAzimuthal,             "Lambert_Azimuthal_Equal_Area",        "latitude_of_center longitude_of_center false_easting false_northing"},
    {Method::albers,                       "Albers_Conic_Equal_Area",             "latitude_of_center longitude_of_center standard_parallel_1 standard_parallel_2 false_easting false_northing"},
    {Method::bonne,                        "Bonne",                               "standard_parallel_1 central_meridian false_easting false_northing"},
    {Method::cylindricalEqualAreaSphere,   "Cylindrical_Equal_Area",              "standard_parallel_1 central_meridian false_easting false_northing"},
    {Method::cylindricalEqualArea,         "Cylindrical_Equal_Area",              "standard_parallel_1 central_meridian false_easting false_northing"},
    {Method::orthographic,                 "Orthographic",                        "latitude_of_origin central_meridian false_easting false_northing"},
    {Method::stereographic,                "Stereographic",                       "latitude_of_origin central_meridian scale_factor false_easting false_northing"},
    {Method::gnomonic,                     "Gnomonic",                            "latitude_of_origin central_meridian false_easting false_northing"},
    {Method::azimuthalEquidistant,         "Azimuthal_Equidistant",               "latitude_of_center longitude_of_center false_easting false_northing"},
    {Method::equidistantConic,             "Equidistant_Conic",                   "latitude_of_center longitude_of_center standard_parallel_1 standard_parallel_2 false_easting false_northing"},
    {Method::miller,                       "Miller_Cylindrical",                  "longitude_of_center false_easting false_northing"},
    {Method::mollweide,                    "Mollweide",                           "central_meridian false_easting false_northing"},
    {Method::sinusoidal,                   "Sinusoidal",                          "longitude_of_center false_easting false_northing"},
    {Method::robinson,                     "Robinson",                            "longitude_of_center false_easting false_northing"},
    {Method::vanDerGrinten,                "VanDerGrinten",                       "central_meridian false_easting false_northing"},
    {Method::eckert4,                      "Eckert_IV",                           "central_meridian false_easting false_northing"},
    {Method::eckert6,                      "Eckert_VI",                           "central_meridian false_easting false_northing"},
    {Method::gaussSchreiber,               "Gauss_Schreiber_Transverse_Mercator", "latitude_of_origin central_meridian scale_factor false_easting false_northing"},
};

inline constexpr SpellingRow esriSpellings[] = {
    {Method::pseudoMercator,               "Mercator_Auxiliary_Sphere",           "=0 Central_Meridian False_Easting False_Northing Standard_Parallel_1=0 Auxiliary_Sphere_Type=0"},
    {Method::equidistantCylindricalSphere, "Equidistant_Cylindrical",             "Standard_Parallel_1 Central_Meridian False_Easting False_Northing"},
    {Method::equidistantCylindricalSphere, "Plate_Carree",                        "=0 Central_Meridian False_Easting False_Northing"},
    {Method::equidistantCylindrical,       "Equidistant_Cylindrical_Ellipsoidal", "Standard_Parallel_1 Central_Meridian False_Easting False_Northing"},
    {Method::equidistantCylindricalSphere, "Equidistant_Cylindrical_Ellipsoidal", "Standard_Parallel_1 Central_Meridian False_Easting False_Northing"},
    {Method::krovakNorth,                  "Krovak",                              "Latitude_Of_Center Longitude_Of_Center Azimuth Pseudo_Standard_Parallel_1 Scale_Factor False_Easting False_Northing X_Scale=-1 Y_Scale=1 XY_Plane_Rotation=90"},
    {Method::krovak,                       "Krovak",                              "Latitude_Of_Center Longitude_Of_Center Azimuth Pseudo_Standard_Parallel_1 Scale_Factor False_Easting False_Northing X_Scale=1 Y_Scale=1 XY_Plane_Rotation=0"},
    {Method::colombiaUrban,                "IGAC_Plano_Cartesiano",               "Latitude_Of_Center Longitude_Of_Center False_Easting False_Northing Height"},
    {Method::equalEarth,                   "Equal_Earth",                         "Central_Meridian False_Easting False_Northing"},
    {Method::lambertConic1,                "Lambert_Conformal_Conic",             "Latitude_Of_Origin Central_Meridian Scale_Factor False_Easting False_Northing Standard_Parallel_1=Latitude_Of_Origin"},
    {Method::lambertConic1,                "Lambert_Conformal_Conic_1SP",         "Latitude_Of_Origin Central_Meridian Scale_Factor False_Easting False_Northing"},
    {Method::lambertConic2,                "Lambert_Conformal_Conic",             "Latitude_Of_Origin Central_Meridian Standard_Parallel_1 Standard_Parallel_2 False_Easting False_Northing"},
    {Method::lambertConic2,                "Lambert_Conformal_Conic",             "Latitude_Of_Origin Central_Meridian Standard_Parallel_1 =Standard_Parallel_1 False_Easting False_Northing"},
    {Method::lambertConicMichigan,         "Lambert_Conformal_Conic",             "Latitude_Of_Origin Central_Meridian Standard_Parallel_1 Standard_Parallel_2 False_Easting False_Northing Scale_Factor"},
    {Method::lambertConicMichigan,         "Lambert_Conformal_Conic",             "Latitude_Of_Origin Central_Meridian Standard_Parallel_1 =Standard_Parallel_1 False_Easting False_Northing Scale_Factor"},
    {Method::lambertConicBelgium,          "Lambert_Conformal_Conic_2SP_Belgium", "Latitude_Of_Origin Central_Meridian Standard_Parallel_1 Standard_Parallel_2 False_Easting False_Northing"},
    {Method::mercatorA,                    "Mercator_Variant_A",                  "=0 Central_Meridian Scale_Factor False_Easting False_Northing"},
    {Method::mercatorB,                    "Mercator",                            "Standard_Parallel_1 Central_Meridian False_Easting False_Northing"},
    {Method::cassini,                      "Cassini",                             "Latitude_Of_Origin Central_Meridian False_Easting False_Northing Scale_Factor=1"},
    {Method::cassini,                      "Cassini",                             "Latitude_Of_Origin Central_Meridian False_Easting False_Northing"},
    {Method::transverseMercator,           "Transverse_Mercator",                 "Latitude_Of_Origin Central_Meridian Scale_Factor False_Easting False_Northing"},
    {Method::transverseMercator,           "Gauss_Kruger",                        "Latitude_Of_Origin Central_Meridian Scale_Factor False_Easting False_Northing"},
    {Method::transverseMercator,           "Transverse_Mercator_Complex",         "Latitude_Of_Origin Central_Meridian Scale_Factor False_Easting False_Northing"},
    {Method::transverseMercatorSouth,      "Transverse_Mercator_South_Orientated", "Latitude_Of_Origin Central_Meridian Scale_Factor False_Easting False_Northing"},
    {Method::obliqueStereographic,         "Double_Stereographic",                "Latitude_Of_Origin Central_Meridian Scale_Factor False_Easting False_Northing"},
    {Method::polarStereographicA,          "Polar_Stereographic_Variant_A",       "Latitude_Of_Origin Central_Meridian Scale_Factor False_Easting False_Northing"},
    {Method::polarStereographicA,          "Stereographic",                       "Latitude_Of_Origin Central_Meridian Scale_Factor False_Easting False_Northing"},
    {Method::polarStereographicB,          "Stereographic_North_Pole",            "Standard_Parallel_1 Central_Meridian False_Easting False_Northing"},
    {Method::polarStereographicB,          "Stereographic_South_Pole",            "Standard_Parallel_1 Central_Meridian False_Easting False_Northing"},
    {Method::polarStereographicB,          "Polar_Stereographic_Variant_B",       "Standard_Parallel_1 Longitude_Of_Origin False_Easting False_Northing"},
    {Method::polarStereographicC,          "Polar_Stereographic_Variant_C",       "Standard_Parallel_1 Longitude_Of_Origin False_Easting False_Northing"},
    {Method::newZealandMapGrid,            "New_Zealand_Map_Grid",                "Latitude_Of_Origin Longitude_Of_Origin False_Easting False_Northing"},
    {Method::hotineA,                      "Rectified_Skew_Orthomorphic_Natural_Origin", "Latitude_Of_Center Longitude_Of_Center Azimuth XY_Plane_Rotation Scale_Factor False_Easting False_Northing"},
    {Method::hotineA,                      "Hotine_Oblique_Mercator_Azimuth_Natural_Origin", "Latitude_Of_Center Longitude_Of_Center Azimuth =Azimuth Scale_Factor False_Easting False_Northing"},
    {Method::hotineB,                      "Rectified_Skew_Orthomorphic_Center",  "Latitude_Of_Center Longitude_Of_Center Azimuth XY_Plane_Rotation Scale_Factor False_Easting False_Northing"},
    {Method::hotineB,                      "Hotine_Oblique_Mercator_Azimuth_Center", "Latitude_Of_Center Longitude_Of_Center Azimuth =Azimuth Scale_Factor False_Easting False_Northing"},
    {Method::hotineTwoPoints,              "Hotine_Oblique_Mercator_Two_Point_Natural_Origin", "Latitude_Of_Center Latitude_Of_1st_Point Longitude_Of_1st_Point Latitude_Of_2nd_Point Longitude_Of_2nd_Point Scale_Factor False_Easting False_Northing"},
    {Method::laborde,                      "Laborde_Oblique_Mercator",            "Latitude_Of_Center Longitude_Of_Center Azimuth Scale_Factor False_Easting False_Northing"},
    {Method::polyconic,                    "Polyconic",                           "Latitude_Of_Origin Central_Meridian False_Easting False_Northing"},
    {Method::lambertAzimuthalSphere,       "Lambert_Azimuthal_Equal_Area",        "Latitude_Of_Origin Central_Meridian False_Easting False_Northing"},
    {Method::lambertAzimuthal,             "Lambert_Azimuthal_Equal_Area",        "Latitude_Of_Origin Central_Meridian False_Easting False_Northing"},
    {Method::albers,                       "Albers",                              "Latitude_Of_Origin Central_Meridian Standard_Parallel_1 Standard_Parallel_2 False_Easting False_Northing"},
    {Method::bonne,                        "Bonne",                               "Standard_Parallel_1 Central_Meridian False_Easting False_Northing"},
    {Method::cylindricalEqualAreaSphere,   "Cylindrical_Equal_Area",              "Standard_Parallel_1 Central_Meridian False_Easting False_Northing"},
    {Method::cylindricalEqualAreaSphere,   "Behrmann",                            "Standard_Parallel_1?30 Central_Meridian False_Easting False_Northing"},
    {Method::cylindricalEqualArea,         "Cylindrical_Equal_Area",              "Standard_Parallel_1 Central_Meridian False_Easting False_Northing"},
    {Method::cylindricalEqualArea,         "Behrmann",                            "Standard_Parallel_1?30 Central_Meridian False_Easting False_Northing"},
    {Method::verticalPerspective,          "Vertical_Near_Side_Perspective",      "Latitude_Of_Center Longitude_Of_Center =0 Height"},
    {Method::orthographic,                 "Orthographic",                        "Latitude_Of_Center Longitude_Of_Center False_Easting False_Northing"},
    {Method::stereographic,                "Stereographic",                       "Latitude_Of_Origin Central_Meridian Scale_Factor False_Easting False_Northing"},
    {Method::gnomonic,                     "Gnomonic",                            "Latitude_Of_Center Longitude_Of_Center False_Easting False_Northing"},
    {Method::azimuthalEquidistant,         "Azimuthal_Equidistant",               "Latitude_Of_Origin Central_Meridian False_Easting False_Northing"},
    {Method::equidistantConic,             "Equidistant_Conic",                   "Latitude_Of_Origin Central_Meridian Standard_Parallel_1 Standard_Parallel_2 False_Easting False_Northing"},
    {Method::miller,                       "Miller_Cylindrical",                  "Central_Meridian False_Easting False_Northing"},
    {Method::mollweide,                    "Mollweide",                           "Central_Meridian False_Easting False_Northing"},
    {Method::sinusoidal,                   "Sinusoidal",                          "Central_Meridian False_Easting False_Northing"},
    {Method::robinson,                     "Robinson",                            "Central_Meridian False_Easting False_Northing"},
    {Method::vanDerGrinten,                "Van_der_Grinten_I",                   "Central_Meridian False_Easting False_Northing"},
    {Method::eckert4,                      "Eckert_IV",                           "Central_Meridian False_Easting False_Northing"},
    {Method::eckert6,                      "Eckert_VI",                           "Central_Meridian False_Easting False_Northing"},
    {Method::gaussSchreiber,               "Gauss_Schreiber_Transverse_Mercator", "Latitude_Of_Origin Central_Meridian Scale_Factor False_Easting False_Northing"},
};

inline constexpr SpellingRow projSpellings[] = {
    {Method::pseudoMercator,               "webmerc",           "=0 lon_0 x_0 y_0"},
    {Method::equidistantCylindrical,       "eqc",               "lat_ts?0 lon_0 x_0 y_0"},
    {Method::equidistantCylindricalSphere, "eqc",               "lat_ts?0 lon_0 x_0 y_0"},
    {Method::krovak,                       "krovak +axis=swu",  "lat_0?49.5 lon_0?24.833333333333332 alpha?30.288139752777777 =78.5 k?0.9999 x_0 y_0"},
    {Method::krovakNorth,                  "krovak",            "lat_0?49.5 lon_0?24.833333333333332 alpha?30.288139752777777 =78.5 k?0.9999 x_0 y_0"},
    {Method::colombiaUrban,                "col_urban",         "lat_0 lon_0 x_0 y_0 h_0"},
    {Method::equalEarth,                   "eqearth",           "lon_0 x_0 y_0"},
    {Method::lambertConic1,                "lcc",               "lat_0?lat_1 lon_0 k x_0 y_0 lat_1=lat_0"},
    {Method::lambertConic2,                "lcc",               "lat_0 lon_0 lat_1 lat_2 x_0 y_0"},
    {Method::lambertConic2,                "lcc",               "lat_0 lon_0 lat_1 =lat_1 x_0 y_0"},
    {Method::lambertConicMichigan,         "lcc",               "lat_0 lon_0 lat_1 lat_2 x_0 y_0 k"},
    {Method::lambertConicMichigan,         "lcc",               "lat_0 lon_0 lat_1 =lat_1 x_0 y_0 k"},
    {Method::mercatorB,                    "merc",              "lat_ts lon_0 x_0 y_0"},
    {Method::mercatorA,                    "merc",              "=0 lon_0 k x_0 y_0"},
    {Method::hyperbolicCassini,            "cass +hyperbolic",  "lat_0 lon_0 x_0 y_0"},
    {Method::cassini,                      "cass",              "lat_0 lon_0 x_0 y_0"},
    {Method::transverseMercatorSouth,      "tmerc +axis=wsu",   "lat_0 lon_0 k x_0 y_0"},
    {Method::transverseMercator,           "tmerc",             "lat_0 lon_0 k x_0 y_0"},
    {Method::transverseMercator,           "etmerc",            "lat_0 lon_0 k x_0 y_0"},
    {Method::obliqueStereographic,         "sterea",            "lat_0 lon_0 k x_0 y_0"},
    {Method::polarStereographicB,          "stere",             "lat_ts lon_0 x_0 y_0 lat_0=pole"},
    {Method::polarStereographicA,          "stere",             "lat_0 lon_0 k x_0 y_0"},
    {Method::stereographic,                "stere",             "lat_0 lon_0 k x_0 y_0"},
    {Method::newZealandMapGrid,            "nzmg",              "lat_0?-41 lon_0?173 x_0?2510000 y_0?6023150"},
    {Method::hotineTwoPoints,              "omerc",             "lat_0 lat_1 lon_1 lat_2 lon_2 k x_0 y_0"},
    {Method::hotineA,                      "omerc +no_uoff",    "lat_0 lonc alpha gamma?alpha k x_0 y_0"},
    {Method::hotineB,                      "somerc",            "lat_0 lon_0 =90 =90 k x_0 y_0"},
    {Method::hotineB,                      "omerc",             "lat_0 lonc alpha gamma?alpha k x_0 y_0"},
    {Method::laborde,                      "labrd",             "lat_0 lon_0 azi k x_0 y_0"},
    {Method::polyconic,                    "poly",              "lat_0 lon_0 x_0 y_0"},
    {Method::lambertAzimuthalSphere,       "laea",              "lat_0 lon_0 x_0 y_0"},
    {Method::lambertAzimuthal,             "laea",              "lat_0 lon_0 x_0 y_0"},
    {Method::albers,                       "aea",               "lat_0 lon_0 lat_1 lat_2 x_0 y_0"},
    {Method::bonne,                        "bonne",             "lat_1 lon_0 x_0 y_0"},
    {Method::guam,                         "aeqd +guam",        "lat_0 lon_0 x_0 y_0"},
    {Method::cylindricalEqualAreaSphere,   "cea",               "lat_ts?0 lon_0 x_0 y_0"},
    {Method::cylindricalEqualArea,         "cea",               "lat_ts?0 lon_0 x_0 y_0"},
    {Method::verticalPerspective,          "nsper",             "lat_0 lon_0 =0 h"},
    {Method::orthographic,                 "ortho",             "lat_0 lon_0 x_0 y_0"},
    {Method::gnomonic,                     "gnom",              "lat_0 lon_0 x_0 y_0"},
    {Method::azimuthalEquidistant,         "aeqd",              "lat_0 lon_0 x_0 y_0"},
    {Method::equidistantConic,             "eqdc",              "lat_0 lon_0 lat_1 lat_2 x_0 y_0"},
    {Method::miller,                       "mill",              "lon_0 x_0 y_0"},
    {Method::mollweide,                    "moll",              "lon_0 x_0 y_0"},
    {Method::sinusoidal,                   "sinu",              "lon_0 x_0 y_0"},
    {Method::robinson,                     "robin",             "lon_0 x_0 y_0"},
    {Method::vanDerGrinten,                "vandg",             "lon_0 x_0 y_0"},
    {Method::eckert4,                      "eck4",              "lon_0 x_0 y_0"},
    {Method::eckert6,                      "eck6",              "lon_0 x_0 y_0"},
    {Method::gaussSchreiber,               "gstmerc",           "lat_0 lon_0 k x_0 y_0"},
};
// clang-format on

} // namespace ZrProj::systems
