// The ellipsoids that GeoTIFF tags name by number, as the EPSG registry defines them (the catalogue's own figures and
// codes differ here and there); printed by tests/data/geotiff/make_tables.py.
#pragma once

#include <array>
#include <cstdint>

namespace ZrProj::GeoTIFF {

struct EllipsoidCodeRow {
    std::uint16_t code;
    double radius;  // metres
    double inverse; // 1 / flattening, 0 for a sphere
};

// clang-format off
inline constexpr auto ellipsoidCodeTable = std::to_array<EllipsoidCodeRow>({
    EllipsoidCodeRow{1024, 6378137, 298.257222101}, // CGCS2000
    EllipsoidCodeRow{1025, 6378136.5, 298.2564151}, // GSK-2011
    EllipsoidCodeRow{1026, 6376045, 310}, // Zach 1812
    EllipsoidCodeRow{7001, 6377563.396, 299.3249646}, // Airy 1830
    EllipsoidCodeRow{7002, 6377340.189, 299.3249646}, // Airy Modified 1849
    EllipsoidCodeRow{7003, 6378160, 298.25}, // Australian National Spheroid
    EllipsoidCodeRow{7004, 6377397.155, 299.1528128}, // Bessel 1841
    EllipsoidCodeRow{7005, 6377492.018, 299.1528128}, // Bessel Modified
    EllipsoidCodeRow{7006, 6377483.865, 299.1528128}, // Bessel Namibia
    EllipsoidCodeRow{7007, 6378293.64520876, 294.260676369261}, // Clarke 1858
    EllipsoidCodeRow{7008, 6378206.4, 294.978698213898}, // Clarke 1866
    EllipsoidCodeRow{7009, 6378450.0475489, 294.978697164674}, // Clarke 1866 Michigan
    EllipsoidCodeRow{7010, 6378300.789, 293.466315538981}, // Clarke 1880 (Benoit)
    EllipsoidCodeRow{7011, 6378249.2, 293.466021293627}, // Clarke 1880 (IGN)
    EllipsoidCodeRow{7012, 6378249.145, 293.465}, // Clarke 1880 (RGS)
    EllipsoidCodeRow{7013, 6378249.145, 293.4663077}, // Clarke 1880 (Arc)
    EllipsoidCodeRow{7014, 6378249.2, 293.46598}, // Clarke 1880 (SGA 1922)
    EllipsoidCodeRow{7015, 6377276.345, 300.8017}, // Everest 1830 (1937 Adjustment)
    EllipsoidCodeRow{7016, 6377298.556, 300.8017}, // Everest 1830 (1967 Definition)
    EllipsoidCodeRow{7018, 6377304.063, 300.8017}, // Everest 1830 Modified
    EllipsoidCodeRow{7019, 6378137, 298.257222101}, // GRS 1980
    EllipsoidCodeRow{7020, 6378200, 298.3}, // Helmert 1906
    EllipsoidCodeRow{7021, 6378160, 298.247}, // Indonesian National Spheroid
    EllipsoidCodeRow{7022, 6378388, 297}, // International 1924
    EllipsoidCodeRow{7024, 6378245, 298.3}, // Krassowsky 1940
    EllipsoidCodeRow{7025, 6378145, 298.25}, // NWL 9D
    EllipsoidCodeRow{7027, 6376523, 308.64}, // Plessis 1817
    EllipsoidCodeRow{7028, 6378298.3, 294.73}, // Struve 1860
    EllipsoidCodeRow{7029, 6378300, 296}, // War Office
    EllipsoidCodeRow{7030, 6378137, 298.257223563}, // WGS 84
    EllipsoidCodeRow{7031, 6378137, 298.257223563}, // GEM 10C
    EllipsoidCodeRow{7032, 6378136.2, 298.257223563}, // OSU86F
    EllipsoidCodeRow{7033, 6378136.3, 298.257223563}, // OSU91A
    EllipsoidCodeRow{7034, 6378249.14480801, 293.46630765563}, // Clarke 1880
    EllipsoidCodeRow{7035, 6371000, 0}, // Sphere
    EllipsoidCodeRow{7036, 6378160, 298.247167427}, // GRS 1967
    EllipsoidCodeRow{7041, 6378135, 298.257}, // Average Terrestrial System 1977
    EllipsoidCodeRow{7042, 6377299.36559538, 300.801725543362}, // Everest (1830 Definition)
    EllipsoidCodeRow{7043, 6378135, 298.26}, // WGS 72
    EllipsoidCodeRow{7044, 6377301.243, 300.8017255}, // Everest 1830 (1962 Definition)
    EllipsoidCodeRow{7045, 6377299.151, 300.8017255}, // Everest 1830 (1975 Definition)
    EllipsoidCodeRow{7046, 6377483.86528042, 299.1528128}, // Bessel Namibia (GLM)
    EllipsoidCodeRow{7047, 6370997, 0}, // GRS 1980 Authalic Sphere
    EllipsoidCodeRow{7048, 6371007, 0}, // GRS 1980 Authalic Sphere
    EllipsoidCodeRow{7049, 6378140, 298.257}, // IAG 1975
    EllipsoidCodeRow{7050, 6378160, 298.25}, // GRS 1967 Modified
    EllipsoidCodeRow{7051, 6377019.27, 300}, // Danish 1876
    EllipsoidCodeRow{7052, 6370997, 0}, // Clarke 1866 Authalic Sphere
    EllipsoidCodeRow{7053, 6378270, 297}, // Hough 1960
    EllipsoidCodeRow{7054, 6378136, 298.257839303}, // PZ-90
    EllipsoidCodeRow{7055, 6378306.3696, 293.46630765563}, // Clarke 1880 (international foot)
    EllipsoidCodeRow{7056, 6377295.664, 300.8017}, // Everest 1830 (RSO 1969)
    EllipsoidCodeRow{7057, 6371228, 0}, // International 1924 Authalic Sphere
    EllipsoidCodeRow{7058, 6378273, 298.279411123064}, // Hughes 1980
    EllipsoidCodeRow{7059, 6378137, 0}, // Popular Visualisation Sphere
});
// clang-format on

} // namespace ZrProj::GeoTIFF
