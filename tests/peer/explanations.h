// What is known to differ from PROJ, and which third judge says who is right.
#pragma once

#include <string_view>

namespace ZrProj::peer {

/// What became of a text that both read.
enum class Outcome {
    agrees,      // within the tolerance, there and back
    theirReturn, // there they agree, and from there ours comes back, PROJ's does not: ours is right
    alone,       // PROJ has no formula; ours is the same as by the code
    refused,     // by the library
    unread,      // by PROJ
    datum,       // another figure or prime meridian
    forward,     // another place on the map
    ourReturn,   // ours does not come back
    notShown,    // PROJ has a place on the map that ours has not
};

struct Explanation {
    Outcome outcome;
    std::string_view method; // as the register calls that of the system; "" for any
    int code;                // of the system; 0 for any
    std::string_view form;   // "" for any
    std::string_view why;
};

// clang-format off
inline constexpr Explanation explanations[] = {
    {Outcome::refused,   "", 3752, "", "says a scale at the equator and an origin elsewhere; PROJ has no map either, and the register replaced it by 3994"},
    {Outcome::forward,   "Lambert Conic Conformal (2SP Belgium)", 0, "", "PROJ leaves out the turn by 29.2985 seconds that the printed example of guidance note 7-2 has"},
    {Outcome::forward,   "Equidistant Cylindrical", 0, "", "PROJ before 9.8 takes the semi-major axis for a sphere's radius; the printed example of guidance note 7-2 has the ellipsoid"},
    {Outcome::forward,   "Equidistant Cylindrical (Spherical)", 0, "", "the form has one name for sphere and ellipsoid: read by its numbers, on the ellipsoid, as PROJ does from 9.8 on"},
    {Outcome::forward,   "Lambert Azimuthal Equal Area (Spherical)", 0, "", "PROJ computes on the ellipsoid where the method has the sphere of its area, 6370997 m of Clarke 1866 as the register prints it"},
    {Outcome::forward,   "Lambert Cylindrical Equal Area (Spherical)", 0, "", "PROJ computes on the ellipsoid where the method has the sphere of its area"},
    {Outcome::forward,   "Laborde Oblique Mercator", 0, "", "PROJ's series is up to 17 mm off the 40 digits of tests/data/projections/laborde.txt"},
    {Outcome::forward,   "Cassini-Soldner", 0, "", "PROJ's series is up to 2 mm off the geodesics of GeographicLib, ours is not"},
    {Outcome::forward,   "", 29333, "", "PROJ rounds the semi-major axis, 6377397.155 German legal metres, to a millimetre"},
    {Outcome::forward,   "Krovak", 0, "WKT1", "PROJ writes no axes and reads the text as the grid that runs north; ours goes by the code in it"},
    {Outcome::datum,     "Mercator (1SP) (Spherical)", 0, "", "PROJ takes the sphere of the text for the web's Mercator on WGS 84, whose map is the same"},
    {Outcome::ourReturn, "Equal Earth", 0, "", "at the poles, where a nanometre on the map is 0.13 m on the ground"},
    {Outcome::notShown,  "Transverse Mercator", 0, "", "the register has no area of use, and of the whole globe the places on the equator 90 degrees off the meridian have no map"},
};
// clang-format on

} // namespace ZrProj::peer
