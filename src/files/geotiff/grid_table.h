// Projected systems that GeoTIFF tags name by number and that are no zones: the grids of countries and continents, and
// those State Plane zones whose definition is not the catalogue's. Numbers are those of the EPSG registry; printed by
// tests/data/geotiff/make_tables.py.
#pragma once

#include "files/geotiff/methods.h"

#include <array>
#include <cstdint>

namespace ZrProj::GeoTIFF {

struct GridRow {
    std::uint16_t code;
    std::uint16_t geographic; // the code of the geographic system
    std::uint16_t unit;       // the code of the unit of length of its coordinates
    Transformation transformation;
    Parameters parameters;
};

// clang-format off
inline constexpr auto gridTable = std::to_array<GridRow>({
    GridRow{2246, 4269, 9003, lambertConformal2, {37.5, -84.25, 37.9666666666667, 38.9666666666667, 1, 500000.0001016, 0, 0, 0}}, // NAD83 / Kentucky North (ftUS)
    GridRow{2264, 4269, 9003, lambertConformal2, {33.75, -79, 36.1666666666667, 34.3333333333333, 1, 609601.219202438, 0, 0, 0}}, // NAD83 / North Carolina (ftUS)
    GridRow{2056, 4150, 9001, obliqueMercatorFromCentre, {46.9524055555556, 7.43958333333333, 0, 0, 1, 2600000, 1200000, 90, 90}}, // CH1903+ / LV95
    GridRow{2100, 4121, 9001, transverseMercator, {0, 24, 0, 0, 0.9996, 500000, 0, 0, 0}}, // GGRS87 / Greek Grid
    GridRow{2154, 4171, 9001, lambertConformal2, {46.5, 3, 49, 44, 1, 700000, 6600000, 0, 0}}, // RGF93 v1 / Lambert-93
    GridRow{2157, 4173, 9001, transverseMercator, {53.5, -8, 0, 0, 0.99982, 600000, 750000, 0, 0}}, // IRENET95 / Irish Transverse Mercator
    GridRow{2180, 9702, 9001, transverseMercator, {0, 19, 0, 0, 0.9993, 500000, -5300000, 0, 0}}, // ETRF2000-PL / CS92
    GridRow{2193, 4167, 9001, transverseMercator, {0, 173, 0, 0, 0.9996, 1600000, 10000000, 0, 0}}, // NZGD2000 / New Zealand Transverse Mercator 2000
    GridRow{2326, 4611, 9001, transverseMercator, {22.3121333333333, 114.178555555556, 0, 0, 1, 836694.05, 819069.8, 0, 0}}, // Hong Kong 1980 Grid System
    GridRow{3005, 4269, 9001, albers, {45, -126, 50, 58.5, 1, 1000000, 0, 0, 0}}, // NAD83 / BC Albers
    GridRow{3006, 4619, 9001, transverseMercator, {0, 15, 0, 0, 0.9996, 500000, 0, 0, 0}}, // SWEREF99 TM
    GridRow{3031, 4326, 9001, polarStereographic, {-71, 0, 0, 0, 1, 0, 0, 0, 0}}, // WGS 84 / Antarctic Polar Stereographic
    GridRow{3034, 4258, 9001, lambertConformal2, {52, 10, 35, 65, 1, 4000000, 2800000, 0, 0}}, // ETRS89-extended / LCC Europe
    GridRow{3035, 4258, 9001, lambertAzimuthal, {52, 10, 0, 0, 1, 4321000, 3210000, 0, 0}}, // ETRS89-extended / LAEA Europe
    GridRow{3067, 4258, 9001, transverseMercator, {0, 27, 0, 0, 0.9996, 500000, 0, 0, 0}}, // ETRS89 / TM35FIN(E,N)
    GridRow{3078, 4269, 9001, obliqueMercator, {45.3091666666667, -86, 0, 0, 0.9996, 2546731.496, -4354009.816, 337.25556, 337.25556}}, // NAD83 / Michigan Oblique Mercator
    GridRow{3081, 4269, 9001, lambertConformal2, {31.1666666666667, -100, 27.4166666666667, 34.9166666666667, 1, 1000000, 1000000, 0, 0}}, // NAD83 / Texas State Mapping System
    GridRow{3083, 4269, 9001, albers, {18, -100, 27.5, 35, 1, 1500000, 6000000, 0, 0}}, // NAD83 / Texas Centric Albers Equal Area
    GridRow{3112, 4283, 9001, lambertConformal2, {0, 134, -18, -36, 1, 0, 0, 0, 0}}, // GDA94 / Geoscience Australia Lambert
    GridRow{3174, 4269, 9001, albers, {45.568977, -84.455955, 42.122774, 49.01518, 1, 1000000, 1000000, 0, 0}}, // NAD83 / Great Lakes Albers
    GridRow{3310, 4269, 9001, albers, {0, -120, 34, 40.5, 1, 0, -4000000, 0, 0}}, // NAD83 / California Albers
    GridRow{3338, 4269, 9001, albers, {50, -154, 55, 65, 1, 0, 0, 0, 0}}, // NAD83 / Alaska Albers
    GridRow{3347, 4269, 9001, lambertConformal2, {63.390675, -91.8666666666667, 49, 77, 1, 6200000, 3000000, 0, 0}}, // NAD83 / Statistics Canada Lambert
    GridRow{3395, 4326, 9001, mercator, {0, 0, 0, 0, 1, 0, 0, 0, 0}}, // WGS 84 / World Mercator
    GridRow{3413, 4326, 9001, polarStereographic, {70, -45, 0, 0, 1, 0, 0, 0, 0}}, // WGS 84 / NSIDC Sea Ice Polar Stereographic North
    GridRow{3577, 4283, 9001, albers, {0, 132, -18, -36, 1, 0, 0, 0, 0}}, // GDA94 / Australian Albers
    GridRow{3763, 4258, 9001, transverseMercator, {39.6682583333333, -8.13310833333333, 0, 0, 1, 0, 0, 0, 0}}, // ETRS89 / Portugal TM06
    GridRow{3765, 4761, 9001, transverseMercator, {0, 16.5, 0, 0, 0.9999, 500000, 0, 0, 0}}, // HTRS96 / Croatia TM
    GridRow{3812, 4258, 9001, lambertConformal2, {50.797815, 4.35921583333333, 49.8333333333333, 51.1666666666667, 1, 649328, 665262, 0, 0}}, // ETRS89 / Belgian Lambert 2008
    GridRow{3976, 4326, 9001, polarStereographic, {-70, 0, 0, 0, 1, 0, 0, 0, 0}}, // WGS 84 / NSIDC Sea Ice Polar Stereographic South
    GridRow{3978, 4269, 9001, lambertConformal2, {49, -95, 49, 77, 1, 0, 0, 0, 0}}, // NAD83 / Canada Atlas Lambert
    GridRow{3979, 4617, 9001, lambertConformal2, {49, -95, 49, 77, 1, 0, 0, 0, 0}}, // NAD83(CSRS) / Canada Atlas Lambert
    GridRow{3995, 4326, 9001, polarStereographic, {71, 0, 0, 0, 1, 0, 0, 0, 0}}, // WGS 84 / Arctic Polar Stereographic
    GridRow{3996, 4326, 9001, polarStereographic, {75, 0, 0, 0, 1, 0, 0, 0, 0}}, // WGS 84 / IBCAO Polar Stereographic
    GridRow{5070, 4269, 9001, albers, {23, -96, 29.5, 45.5, 1, 0, 0, 0, 0}}, // NAD83 / Conus Albers
    GridRow{5180, 4737, 9001, transverseMercator, {38, 125, 0, 0, 1, 200000, 500000, 0, 0}}, // Korea 2000 / West Belt
    GridRow{5181, 4737, 9001, transverseMercator, {38, 127, 0, 0, 1, 200000, 500000, 0, 0}}, // Korea 2000 / Central Belt
    GridRow{5186, 4737, 9001, transverseMercator, {38, 127, 0, 0, 1, 200000, 600000, 0, 0}}, // Korea 2000 / Central Belt 2010
    GridRow{5880, 4674, 9001, polyconic, {0, -54, 0, 0, 1, 5000000, 10000000, 0, 0}}, // SIRGAS 2000 / Brazil Polyconic
    GridRow{6350, 6318, 9001, albers, {23, -96, 29.5, 45.5, 1, 0, 0, 0, 0}}, // NAD83(2011) / Conus Albers
    GridRow{6372, 6365, 9001, lambertConformal2, {12, -102, 17.5, 29.5, 1, 2500000, 0, 0, 0}}, // Mexico ITRF2008 / LCC
    GridRow{6931, 4326, 9001, lambertAzimuthal, {90, 0, 0, 0, 1, 0, 0, 0, 0}}, // WGS 84 / NSIDC EASE-Grid 2.0 North
    GridRow{6932, 4326, 9001, lambertAzimuthal, {-90, 0, 0, 0, 1, 0, 0, 0, 0}}, // WGS 84 / NSIDC EASE-Grid 2.0 South
    GridRow{21781, 4149, 9001, obliqueMercatorFromCentre, {46.9524055555556, 7.43958333333333, 0, 0, 1, 600000, 200000, 90, 90}}, // CH1903 / LV03
    GridRow{22523, 4225, 9001, transverseMercator, {0, -45, 0, 0, 0.9996, 500000, 10000000, 0, 0}}, // Corrego Alegre 1970-72 / UTM zone 23S
    GridRow{23700, 4237, 9001, obliqueMercatorFromCentre, {47.1443937222222, 19.0485717777778, 0, 0, 0.99993, 650000, 200000, 90, 90}}, // HD72 / EOV
    GridRow{25884, 4258, 9001, transverseMercator, {0, 24, 0, 0, 0.9996, 500000, 0, 0, 0}}, // ETRS89 / TM Baltic93
    GridRow{26747, 4267, 9003, lambertConformal2, {34.1333333333333, -118.333333333333, 34.4166666666667, 33.8666666666667, 1, 1276106.4505969, 127079.524511049, 0, 0}}, // NAD27 / California zone VII
    GridRow{26801, 4268, 9003, transverseMercator, {41.5, -83.6666666666667, 0, 0, 0.999942857, 152400.30480061, 0, 0, 0}}, // NAD Michigan / Michigan East
    GridRow{26802, 4268, 9003, transverseMercator, {41.5, -85.75, 0, 0, 0.999909091, 152400.30480061, 0, 0, 0}}, // NAD Michigan / Michigan Old Central
    GridRow{26803, 4268, 9003, transverseMercator, {41.5, -88.75, 0, 0, 0.999909091, 152400.30480061, 0, 0, 0}}, // NAD Michigan / Michigan West
    GridRow{26979, 4269, 9001, lambertConformal2, {37.5, -84.25, 37.9666666666667, 37.9666666666667, 1, 500000, 0, 0, 0}}, // NAD83 / Kentucky North
    GridRow{27700, 4277, 9001, transverseMercator, {49, -2, 0, 0, 0.9996012717, 400000, -100000, 0, 0}}, // OSGB36 / British National Grid
    GridRow{29101, 4618, 9001, polyconic, {0, -54, 0, 0, 1, 5000000, 10000000, 0, 0}}, // SAD69 / Brazil Polyconic
    GridRow{29902, 4299, 9001, transverseMercator, {53.5, -8, 0, 0, 1.000035, 200000, 250000, 0, 0}}, // TM65 / Irish Grid
    GridRow{29903, 4300, 9001, transverseMercator, {53.5, -8, 0, 0, 1.000035, 200000, 250000, 0, 0}}, // TM75 / Irish Grid
    GridRow{31254, 4312, 9001, transverseMercator, {0, 10.3333333333333, 0, 0, 1, 0, -5000000, 0, 0}}, // MGI / Austria GK West
    GridRow{31255, 4312, 9001, transverseMercator, {0, 13.3333333333333, 0, 0, 1, 0, -5000000, 0, 0}}, // MGI / Austria GK Central
    GridRow{31256, 4312, 9001, transverseMercator, {0, 16.3333333333333, 0, 0, 1, 0, -5000000, 0, 0}}, // MGI / Austria GK East
    GridRow{31257, 4312, 9001, transverseMercator, {0, 10.3333333333333, 0, 0, 1, 150000, -5000000, 0, 0}}, // MGI / Austria GK M28
    GridRow{31258, 4312, 9001, transverseMercator, {0, 13.3333333333333, 0, 0, 1, 450000, -5000000, 0, 0}}, // MGI / Austria GK M31
    GridRow{31259, 4312, 9001, transverseMercator, {0, 16.3333333333333, 0, 0, 1, 750000, -5000000, 0, 0}}, // MGI / Austria GK M34
    GridRow{31287, 4312, 9001, lambertConformal2, {47.5, 13.3333333333333, 49, 46, 1, 400000, 400000, 0, 0}}, // MGI / Austria Lambert
    GridRow{31370, 4313, 9001, lambertConformal2, {90, 4.36748666666667, 51.1666672333333, 49.8333339, 1, 150000.013, 5400088.438, 0, 0}}, // BD72 / Belgian Lambert 72
    GridRow{31466, 4314, 9001, transverseMercator, {0, 6, 0, 0, 1, 2500000, 0, 0, 0}}, // DHDN / 3-degree Gauss-Kruger zone 2
    GridRow{31467, 4314, 9001, transverseMercator, {0, 9, 0, 0, 1, 3500000, 0, 0, 0}}, // DHDN / 3-degree Gauss-Kruger zone 3
    GridRow{31468, 4314, 9001, transverseMercator, {0, 12, 0, 0, 1, 4500000, 0, 0, 0}}, // DHDN / 3-degree Gauss-Kruger zone 4
    GridRow{31469, 4314, 9001, transverseMercator, {0, 15, 0, 0, 1, 5500000, 0, 0, 0}}, // DHDN / 3-degree Gauss-Kruger zone 5
    GridRow{32018, 4267, 9003, lambertConformal2, {40.5, -74, 41.0333333333333, 40.6666666666667, 1, 304800.609601219, 0, 0, 0}}, // NAD27 / New York Long Island
    GridRow{32029, 4267, 9003, lambertConformal2, {39.3333333333333, -77.75, 39.9333333333333, 40.8, 1, 609601.219202438, 0, 0, 0}}, // NAD27 / Pennsylvania South
    GridRow{32036, 4267, 9003, lambertConformal2, {34.6666666666667, -86, 35.25, 36.4166666666667, 1, 30480.0609601219, 0, 0, 0}}, // NAD27 / Tennessee
    GridRow{32181, 4269, 9001, transverseMercator, {0, -53, 0, 0, 0.9999, 304800, 0, 0, 0}}, // NAD83 / MTM zone 1
    GridRow{32182, 4269, 9001, transverseMercator, {0, -56, 0, 0, 0.9999, 304800, 0, 0, 0}}, // NAD83 / MTM zone 2
    GridRow{32183, 4269, 9001, transverseMercator, {0, -58.5, 0, 0, 0.9999, 304800, 0, 0, 0}}, // NAD83 / MTM zone 3
    GridRow{32184, 4269, 9001, transverseMercator, {0, -61.5, 0, 0, 0.9999, 304800, 0, 0, 0}}, // NAD83 / MTM zone 4
    GridRow{32185, 4269, 9001, transverseMercator, {0, -64.5, 0, 0, 0.9999, 304800, 0, 0, 0}}, // NAD83 / MTM zone 5
    GridRow{32186, 4269, 9001, transverseMercator, {0, -67.5, 0, 0, 0.9999, 304800, 0, 0, 0}}, // NAD83 / MTM zone 6
    GridRow{32187, 4269, 9001, transverseMercator, {0, -70.5, 0, 0, 0.9999, 304800, 0, 0, 0}}, // NAD83 / MTM zone 7
    GridRow{32188, 4269, 9001, transverseMercator, {0, -73.5, 0, 0, 0.9999, 304800, 0, 0, 0}}, // NAD83 / MTM zone 8
    GridRow{32189, 4269, 9001, transverseMercator, {0, -76.5, 0, 0, 0.9999, 304800, 0, 0, 0}}, // NAD83 / MTM zone 9
    GridRow{32190, 4269, 9001, transverseMercator, {0, -79.5, 0, 0, 0.9999, 304800, 0, 0, 0}}, // NAD83 / MTM zone 10
    GridRow{32191, 4269, 9001, transverseMercator, {0, -82.5, 0, 0, 0.9999, 304800, 0, 0, 0}}, // NAD83 / MTM zone 11
    GridRow{32192, 4269, 9001, transverseMercator, {0, -81, 0, 0, 0.9999, 304800, 0, 0, 0}}, // NAD83 / MTM zone 12
    GridRow{32193, 4269, 9001, transverseMercator, {0, -84, 0, 0, 0.9999, 304800, 0, 0, 0}}, // NAD83 / MTM zone 13
    GridRow{32194, 4269, 9001, transverseMercator, {0, -87, 0, 0, 0.9999, 304800, 0, 0, 0}}, // NAD83 / MTM zone 14
    GridRow{32195, 4269, 9001, transverseMercator, {0, -90, 0, 0, 0.9999, 304800, 0, 0, 0}}, // NAD83 / MTM zone 15
    GridRow{32196, 4269, 9001, transverseMercator, {0, -93, 0, 0, 0.9999, 304800, 0, 0, 0}}, // NAD83 / MTM zone 16
    GridRow{32197, 4269, 9001, transverseMercator, {0, -96, 0, 0, 0.9999, 304800, 0, 0, 0}}, // NAD83 / MTM zone 17
    GridRow{32198, 4269, 9001, lambertConformal2, {44, -68.5, 60, 46, 1, 0, 0, 0, 0}}, // NAD83 / Quebec Lambert
});
// clang-format on

} // namespace ZrProj::GeoTIFF
