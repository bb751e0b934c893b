// The ellipsoid catalogue: one row an ellipsoid, in EllipsoidType order.
#pragma once

#include <array>

namespace ZrProj {

struct EllipsoidRow {
    char const* name;
    double radius;            // semi-major axis, metres
    double inverseFlattening; // 0 for a sphere
    int posc;                 // POSC (EPSG) code, 0 where there is none

    constexpr double flattening() const { return inverseFlattening == 0 ? 0 : 1 / inverseFlattening; }
};

// clang-format off
inline constexpr std::array ellipsoidTable{
    EllipsoidRow{"User Defined", 0, 0, 0},
    EllipsoidRow{"MERIT 1983", 6378137, 298.257, 0},
    EllipsoidRow{"Soviet Geodetic System 85", 6378136, 298.257, 0},
    EllipsoidRow{"GRS 1980 / IUGG 1980", 6378137, 298.257222101, 7019},
    EllipsoidRow{"IAU 1976", 6378140, 298.257, 0},
    EllipsoidRow{"Airy 1830", 6377563.396, 299.3249646, 7001},
    EllipsoidRow{"Appl. Physics. 1965", 6378137, 298.25, 0},
    EllipsoidRow{"Naval Weapons Lab., 1965", 6378145, 298.25, 0},
    EllipsoidRow{"Modified Airy", 6377340.189, 299.3249646, 7002},
    EllipsoidRow{"Andrae 1876 (Den., Iclnd.)", 6377104.43, 300, 0},
    EllipsoidRow{"Australian Natl & S. Amer. 1969", 6378160, 298.25, 7003},
    EllipsoidRow{"GRS 67(IUGG 1967)", 6378160, 298.247167427, 0},
    EllipsoidRow{"Bessel 1841", 6377397.155, 299.1528128, 7004},
    EllipsoidRow{"Bessel 1841 (Namibia)", 6377483.865, 299.1528128, 7006},
    EllipsoidRow{"Bessel Modified", 6377397.155, 299.152815351, 7005},
    EllipsoidRow{"Clarke 1866", 6378206.4, 294.9786982, 7008},
    EllipsoidRow{"Clarke 1880 mod.", 6378249.145, 293.4663, 7010},
    EllipsoidRow{"Comm. des Poids et Mesures 1799", 6375738.7, 334.29, 0},
    EllipsoidRow{"Delambre 1810 (Belgium)", 6376428, 311.5, 0},
    EllipsoidRow{"Engelis 1985", 6378136.05, 298.2566, 0},
    EllipsoidRow{"Everest 1830", 6377276.345, 300.8017, 7015},
    EllipsoidRow{"Everest 1948", 6377304.063, 300.8017, 0},
    EllipsoidRow{"Everest 1956", 6377301, 300.8017, 0},
    EllipsoidRow{"Everest 1969", 6377295, 300.8017, 0},
    EllipsoidRow{"Everest - Brunei", 6377298.556, 300.8017, 0},
    EllipsoidRow{"Everest (Sabah & Sarawak)", 6377298, 300.8017, 0},
    EllipsoidRow{"Everest Pakistan", 6377309.613, 300.8017, 0},
    EllipsoidRow{"Fischer (Mercury Datum) 1960", 6378166, 298.3, 0},
    EllipsoidRow{"Modified Fischer 1960", 6378155, 298.3, 0},
    EllipsoidRow{"Fischer 1968", 6378150, 298.3, 0},
    EllipsoidRow{"Helmert 1906", 6378200, 298.3, 7020},
    EllipsoidRow{"Hough", 6378270, 297, 0},
    EllipsoidRow{"Indonesian 1974", 6378160, 298.247, 7021},
    EllipsoidRow{"International 1909 (Hayford)", 6378388, 297, 0},
    EllipsoidRow{"International 1924", 6378388, 297, 7022},
    EllipsoidRow{"Krassovsky, 1942", 6378245, 298.3, 7024},
    EllipsoidRow{"Kaula 1961", 6378163, 298.24, 0},
    EllipsoidRow{"Lerch 1979", 6378139, 298.257, 0},
    EllipsoidRow{"Maupertius 1738", 6397300, 191, 0},
    EllipsoidRow{"New International 1967", 6378157.5, 298.25, 7023},
    EllipsoidRow{"Plessis 1817 (France)", 6376523, 308.64, 7027},
    EllipsoidRow{"Southeast Asia", 6378155, 298.3, 0},
    EllipsoidRow{"State Plane 1927, Michigan", 6378450.047, 294.9786982, 7009},
    EllipsoidRow{"Walbeck", 6376896, 302.78, 0},
    EllipsoidRow{"WGS 60", 6378165, 298.3, 0},
    EllipsoidRow{"WGS 66", 6378145, 298.25, 0},
    EllipsoidRow{"WGS 72", 6378135, 298.26, 0},
    EllipsoidRow{"WGS 84", 6378137, 298.257223563, 7030},
    EllipsoidRow{"Standard Sphere of 6370997 Meters", 6370997, 0, 7035},
    EllipsoidRow{"Standard Sphere of One Unit", 1, 0, 0},
};
// clang-format on
static_assert(ellipsoidTable.size() == 50);

} // namespace ZrProj
