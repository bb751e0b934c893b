// What a formula is made from. The same for every processor level.
#pragma once

namespace ZrProj::formulas {

/// A degree in radians, a radian in degrees. Parameters and points go by the same numbers, so that a point on the
/// central meridian is on it in radians too.
inline constexpr double degree = 0.017453292519943295, radian = 57.29577951308232;

enum class AngleUnit { degrees, radians };

/// The parameters of a map, those that its formula does not use left as they are here. False origin, scale and units
/// are not among them: a converter adds those.
template <AngleUnit> struct ParametersIn {
    double a = 0, f = 0;       // semi-major axis and flattening of the ellipsoid
    double lat0 = 0, lon0 = 0; // origin: of latitudes or northings; central meridian
    double lat1 = 0, lon1 = 0; // first standard parallel, first point of a line, centre
    double lat2 = 0, lon2 = 0; // second standard parallel, second point of a line
    double k0 = 1;             // scale at the centre or along the line
    double azimuth = 0;        // of an oblique line at its centre, clockwise from north
    double rectifiedAngle = 0; // from the rectified to the skew grid
    double coLatitude = 0;     // of the axis of an oblique cone
    double height = 0;         // of a plane of projection above the ellipsoid, in the unit of `a`
    double zoneWidth = 0;      // of the longitudes that a zone of a zoned grid has; lon0 is where zone 1 begins
    bool useAzimuth = false;   // the line is given by its azimuth, not by two points
    bool rotate = false;       // x and y are east and north, not along the line and across
    bool offsetByU = false;    // distances along the line count from the centre
};

using Parameters = ParametersIn<AngleUnit::radians>;
using ParametersInDegrees = ParametersIn<AngleUnit::degrees>;

/// Inlined wherever it is called, so that no processor level's copy is another's.
[[gnu::always_inline]] inline Parameters inRadians(ParametersInDegrees const& given) {
    return {.a = given.a,
            .f = given.f,
            .lat0 = given.lat0 * degree,
            .lon0 = given.lon0 * degree,
            .lat1 = given.lat1 * degree,
            .lon1 = given.lon1 * degree,
            .lat2 = given.lat2 * degree,
            .lon2 = given.lon2 * degree,
            .k0 = given.k0,
            .azimuth = given.azimuth * degree,
            .rectifiedAngle = given.rectifiedAngle * degree,
            .coLatitude = given.coLatitude * degree,
            .height = given.height,
            .zoneWidth = given.zoneWidth * degree,
            .useAzimuth = given.useAzimuth,
            .rotate = given.rotate,
            .offsetByU = given.offsetByU};
}

} // namespace ZrProj::formulas
