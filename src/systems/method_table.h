// The methods and their parameters as the register has them: codes, names, and which method takes which parameters, in
// the register's order.
#pragma once

#include "systems/methods.h"

#include <array>
#include <string_view>

namespace ZrProj::systems {

enum class Kind : unsigned char { angle, length, scale };

struct ParameterRow {
    int code;
    Parameter parameter;
    Kind kind;
    std::string_view name;
};

struct MethodRow {
    Method method;
    int code; // 0: without one
    std::string_view name;
    std::array<int, 8> parameters; // codes, filled up with 0
};

// clang-format off
inline constexpr ParameterRow parameterRows[] = {
    {1036, Parameter::coLatitudeOfAxis,  Kind::angle,  "Co-latitude of cone axis"},
    {1038, Parameter::ellipsoidScale,    Kind::scale,  "Ellipsoid scaling factor"},
    {1039, Parameter::planeHeight,       Kind::length, "Projection plane origin height"},
    {8801, Parameter::latitudeOfOrigin,  Kind::angle,  "Latitude of natural origin"},
    {8802, Parameter::longitudeOfOrigin, Kind::angle,  "Longitude of natural origin"},
    {8805, Parameter::scaleFactor,       Kind::scale,  "Scale factor at natural origin"},
    {8806, Parameter::falseEasting,      Kind::length, "False easting"},
    {8807, Parameter::falseNorthing,     Kind::length, "False northing"},
    {8811, Parameter::latitudeOfOrigin,  Kind::angle,  "Latitude of projection centre"},
    {8812, Parameter::longitudeOfOrigin, Kind::angle,  "Longitude of projection centre"},
    {8813, Parameter::azimuth,           Kind::angle,  "Azimuth of initial line"},
    {8814, Parameter::rectifiedAngle,    Kind::angle,  "Angle from Rectified to Skew Grid"},
    {8815, Parameter::scaleFactor,       Kind::scale,  "Scale factor on initial line"},
    {8816, Parameter::falseEasting,      Kind::length, "Easting at projection centre"},
    {8817, Parameter::falseNorthing,     Kind::length, "Northing at projection centre"},
    {8818, Parameter::standardParallel1, Kind::angle,  "Latitude of pseudo standard parallel"},
    {8819, Parameter::scaleFactor,       Kind::scale,  "Scale factor on pseudo standard parallel"},
    {8821, Parameter::latitudeOfOrigin,  Kind::angle,  "Latitude of false origin"},
    {8822, Parameter::longitudeOfOrigin, Kind::angle,  "Longitude of false origin"},
    {8823, Parameter::standardParallel1, Kind::angle,  "Latitude of 1st standard parallel"},
    {8824, Parameter::standardParallel2, Kind::angle,  "Latitude of 2nd standard parallel"},
    {8826, Parameter::falseEasting,      Kind::length, "Easting at false origin"},
    {8827, Parameter::falseNorthing,     Kind::length, "Northing at false origin"},
    {8828, Parameter::latitudeOfOrigin,  Kind::angle,  "Spherical latitude of origin"},
    {8829, Parameter::longitudeOfOrigin, Kind::angle,  "Spherical longitude of origin"},
    {8830, Parameter::longitudeOfOrigin, Kind::angle,  "Initial longitude"},
    {8831, Parameter::zoneWidth,         Kind::angle,  "Zone width"},
    {8832, Parameter::standardParallel1, Kind::angle,  "Latitude of standard parallel"},
    {8833, Parameter::longitudeOfOrigin, Kind::angle,  "Longitude of origin"},
    {8834, Parameter::latitudeOfOrigin,  Kind::angle,  "Latitude of topocentric origin"},
    {8835, Parameter::longitudeOfOrigin, Kind::angle,  "Longitude of topocentric origin"},
    {8836, Parameter::planeHeight,       Kind::length, "Ellipsoidal height of topocentric origin"},
    {8840, Parameter::viewHeight,        Kind::length, "Viewpoint height"},
    // Without a code in the register:
    {-1,   Parameter::latitudeOfPoint1,  Kind::angle,  "Latitude of 1st point"},
    {-2,   Parameter::longitudeOfPoint1, Kind::angle,  "Longitude of 1st point"},
    {-3,   Parameter::latitudeOfPoint2,  Kind::angle,  "Latitude of 2nd point"},
    {-4,   Parameter::longitudeOfPoint2, Kind::angle,  "Longitude of 2nd point"},
};

/// In the order of Method. Where the register keeps a method under two codes, the row has the one in force.
inline constexpr MethodRow methodRows[] = {
    {Method::none,                            0, "",                                        {}},
    {Method::pseudoMercator,               1024, "Popular Visualisation Pseudo Mercator",   {8801, 8802, 8806, 8807}},
    {Method::lambertAzimuthalSphere,       1027, "Lambert Azimuthal Equal Area (Spherical)", {8801, 8802, 8806, 8807}},
    {Method::equidistantCylindrical,       1028, "Equidistant Cylindrical",                 {8823, 8802, 8806, 8807}},
    {Method::equidistantCylindricalSphere, 1029, "Equidistant Cylindrical (Spherical)",     {8823, 8802, 8806, 8807}},
    {Method::krovakNorth,                  1041, "Krovak (North Orientated)",               {8811, 8833, 1036, 8818, 8819, 8806, 8807}},
    {Method::krovakModified,               1042, "Krovak Modified",                         {8811, 8833, 1036, 8818, 8819, 8806, 8807}},
    {Method::krovakModifiedNorth,          1043, "Krovak Modified (North Orientated)",      {8811, 8833, 1036, 8818, 8819, 8806, 8807}},
    {Method::lambertConicMichigan,         1051, "Lambert Conic Conformal (2SP Michigan)",  {8821, 8822, 8823, 8824, 8826, 8827, 1038}},
    {Method::colombiaUrban,                1052, "Colombia Urban",                          {8801, 8802, 8806, 8807, 1039}},
    {Method::equalEarth,                   1078, "Equal Earth",                             {8802, 8806, 8807}},
    {Method::transverseMercator3D,         1111, "Transverse Mercator 3D",                  {8801, 8802, 8805, 8806, 8807}},
    {Method::lambertConic1,                9801, "Lambert Conic Conformal (1SP)",           {8801, 8802, 8805, 8806, 8807}},
    {Method::lambertConic2,                9802, "Lambert Conic Conformal (2SP)",           {8821, 8822, 8823, 8824, 8826, 8827}},
    {Method::lambertConicBelgium,          9803, "Lambert Conic Conformal (2SP Belgium)",   {8821, 8822, 8823, 8824, 8826, 8827}},
    {Method::mercatorA,                    9804, "Mercator (variant A)",                    {8801, 8802, 8805, 8806, 8807}},
    {Method::mercatorB,                    9805, "Mercator (variant B)",                    {8823, 8802, 8806, 8807}},
    {Method::cassini,                      9806, "Cassini-Soldner",                         {8801, 8802, 8806, 8807}},
    {Method::transverseMercator,           9807, "Transverse Mercator",                     {8801, 8802, 8805, 8806, 8807}},
    {Method::transverseMercatorSouth,      9808, "Transverse Mercator (South Orientated)",  {8801, 8802, 8805, 8806, 8807}},
    {Method::obliqueStereographic,         9809, "Oblique Stereographic",                   {8801, 8802, 8805, 8806, 8807}},
    {Method::polarStereographicA,          9810, "Polar Stereographic (variant A)",         {8801, 8802, 8805, 8806, 8807}},
    {Method::newZealandMapGrid,            9811, "New Zealand Map Grid",                    {8801, 8802, 8806, 8807}},
    {Method::hotineA,                      9812, "Hotine Oblique Mercator (variant A)",     {8811, 8812, 8813, 8814, 8815, 8806, 8807}},
    {Method::laborde,                      9813, "Laborde Oblique Mercator",                {8811, 8812, 8813, 8815, 8806, 8807}},
    {Method::hotineB,                      9815, "Hotine Oblique Mercator (variant B)",     {8811, 8812, 8813, 8814, 8815, 8816, 8817}},
    {Method::tunisiaMiningGrid,            9816, "Tunisia Mining Grid",                     {8821, 8822, 8826, 8827}},
    {Method::lambertConicNearConformal,    9817, "Lambert Conic Near-Conformal",            {8801, 8802, 8805, 8806, 8807}},
    {Method::polyconic,                    9818, "American Polyconic",                      {8801, 8802, 8806, 8807}},
    {Method::krovak,                       9819, "Krovak",                                  {8811, 8833, 1036, 8818, 8819, 8806, 8807}},
    {Method::lambertAzimuthal,             9820, "Lambert Azimuthal Equal Area",            {8801, 8802, 8806, 8807}},
    {Method::albers,                       9822, "Albers Equal Area",                       {8821, 8822, 8823, 8824, 8826, 8827}},
    {Method::transverseMercatorZoned,      9824, "Transverse Mercator Zoned Grid System",   {8801, 8830, 8831, 8805, 8806, 8807}},
    {Method::lambertConicWest,             9826, "Lambert Conic Conformal (West Orientated)", {8801, 8802, 8805, 8806, 8807}},
    {Method::bonne,                        9827, "Bonne",                                   {8801, 8802, 8806, 8807}},
    {Method::bonneSouth,                   9828, "Bonne (South Orientated)",                {8801, 8802, 8806, 8807}},
    {Method::polarStereographicB,          9829, "Polar Stereographic (variant B)",         {8832, 8833, 8806, 8807}},
    {Method::polarStereographicC,          9830, "Polar Stereographic (variant C)",         {8832, 8833, 8826, 8827}},
    {Method::guam,                         9831, "Guam Projection",                         {8801, 8802, 8806, 8807}},
    {Method::modifiedAzimuthalEquidistant, 9832, "Modified Azimuthal Equidistant",          {8801, 8802, 8806, 8807}},
    {Method::hyperbolicCassini,            9833, "Hyperbolic Cassini-Soldner",              {8801, 8802, 8806, 8807}},
    {Method::cylindricalEqualAreaSphere,   9834, "Lambert Cylindrical Equal Area (Spherical)", {8823, 8802, 8806, 8807}},
    {Method::cylindricalEqualArea,         9835, "Lambert Cylindrical Equal Area",          {8823, 8802, 8806, 8807}},
    {Method::verticalPerspective,          9838, "Vertical Perspective",                    {8834, 8835, 8836, 8840}},
    {Method::orthographic,                 9840, "Orthographic",                            {8801, 8802, 8806, 8807}},
    {Method::mercatorSphere,               9841, "Mercator (1SP) (Spherical)",              {8801, 8802, 8805, 8806, 8807}},
    {Method::stereographic,                   0, "Stereographic",                           {8801, 8802, 8805, 8806, 8807}},
    {Method::gnomonic,                        0, "Gnomonic",                                {8801, 8802, 8806, 8807}},
    {Method::azimuthalEquidistant,            0, "Azimuthal Equidistant",                   {8801, 8802, 8806, 8807}},
    {Method::equidistantConic,                0, "Equidistant Conic",                       {8821, 8822, 8823, 8824, 8826, 8827}},
    {Method::miller,                          0, "Miller Cylindrical",                      {8802, 8806, 8807}},
    {Method::mollweide,                       0, "Mollweide",                               {8802, 8806, 8807}},
    {Method::sinusoidal,                      0, "Sinusoidal",                              {8802, 8806, 8807}},
    {Method::robinson,                        0, "Robinson",                                {8802, 8806, 8807}},
    {Method::vanDerGrinten,                   0, "Van Der Grinten",                         {8802, 8806, 8807}},
    {Method::eckert4,                         0, "Eckert IV",                               {8802, 8806, 8807}},
    {Method::eckert6,                         0, "Eckert VI",                               {8802, 8806, 8807}},
    {Method::gaussSchreiber,                  0, "Gauss Schreiber Transverse Mercator",     {8801, 8802, 8805, 8806, 8807}},
    {Method::hotineTwoPoints,                 0, "Hotine Oblique Mercator Two Point Natural Origin", {8811, -1, -2, -3, -4, 8815, 8816, 8817}},
};
// clang-format on

static_assert([] {
    for (std::size_t i = 0; i < std::size(methodRows); ++i)
        if (methodRows[i].method != Method(i))
            return false;
    return std::size(methodRows) == std::size_t(Method::hotineTwoPoints) + 1;
}());

constexpr MethodRow const& rowOf(Method method) {
    return methodRows[std::size_t(method)];
}

/// The parameter by its code, or null.
constexpr ParameterRow const* parameterByCode(int code) {
    for (ParameterRow const& row : parameterRows)
        if (row.code == code)
            return &row;
    return nullptr;
}

} // namespace ZrProj::systems
