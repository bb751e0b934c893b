// Tags that are damaged, placements of all kinds, and records that tags can and cannot say.
#include "support/bytes.h"
#include "support/geotiff_cases.h"
#include "support/side_files.h"
#include "support/temporary_directory.h"

#include <zrproj/zrproj.h>

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstring>
#include <fstream>
#include <functional>
#include <limits>

namespace ZrProj::test {
namespace {

constexpr double inf = std::numeric_limits<double>::infinity(), nan = std::numeric_limits<double>::quiet_NaN();

struct Read {
    bool good = false;
    PROJDATA projection = {};
    DatumType datum = DatumTypeNone;
    DATUM2WGS84 params = {};
    GEOREF georef = {};
    std::uint32_t flags = 0;

    explicit Read(ZrBitmapTagList const& tags) {
        good = ZrProjGetGeoTIFF(tags, &projection, &datum, &params, &georef, &flags);
    }
    Read(Read const&) = delete;
    Read& operator=(Read const&) = delete;
    ~Read() { RefFreeControls(&georef); }
};

std::string explained(ZrBitmapTagList const& tags) {
    std::array<char, 512> text = {};
    EXPECT_TRUE(ZrProjExplainGeoTIFF(tags, text.data(), 512));
    return text.data();
}

/// Tags made from records; the refusal where there are none.
struct Made {
    ZrBitmapTagList tags;
    std::string refusal;

    Made(PROJDATA const& data, DatumType datum, DATUM2WGS84 const* params = nullptr, GEOREF const* georef = nullptr) {
        ZrBitmapTag* made = nullptr;
        int count = 0;
        bool const good = ZrProjBuildGeoTIFFTags(&data, datum, params, georef, &made, &count);
        for (int i = 0; i < count; ++i)
            EXPECT_TRUE(tags.Add(made[i]));
        EXPECT_EQ(good, made != nullptr);
        ZrProjDiscardGeoTIFFTags(made, count);
        std::array<char, 512> text = {};
        EXPECT_TRUE(ZrProjExplainGeoTIFFTags(&data, datum, params, georef, text.data(), 512));
        refusal = text.data();
        EXPECT_EQ(refusal.empty(), good);
    }
};

PROJDATA recordOf(ProjType type, EllipsoidType ellipsoid) {
    PROJDATA record = {};
    record.Type = type;
    record.Ellipsoid = ellipsoid;
    record.MajorRadius = EllipsoidRadius(ellipsoid);
    record.Flattening = EllipsoidFlattening(ellipsoid);
    return record;
}

PROJDATA utm(double lon0) {
    PROJDATA record = recordOf(ProjTypeUniversalTransverseMercator, EllipsoidTypeWgs84);
    record.Lon0 = lon0;
    return record;
}

GEOREF coefficients(double A, double B, double C, double D, double E, double F) {
    GEOREF georef = {};
    georef.Method = TransformMethodPrecalculatedAffineCoefficients;
    georef.A = A, georef.B = B, georef.C = C, georef.D = D, georef.E = E, georef.F = F;
    return georef;
}

void expectCoefficients(GEOREF const& georef, std::array<double, 6> const& expected) {
    EXPECT_EQ(georef.Method, TransformMethodPrecalculatedAffineCoefficients);
    EXPECT_EQ((std::array{georef.A, georef.B, georef.C, georef.D, georef.E, georef.F}), expected);
}

TEST(ZrBitmapTagList, OwnsCopiesInOrderAndRefusesNonsense) {
    ZrBitmapTagList tags;
    {
        std::vector<double> values{1, 2, 3};
        EXPECT_TRUE(tags.Add({33550, 12, 3, values.data()}));
        values.assign(3, 9);
    }
    EXPECT_TRUE(tags.Add({7, 2, 0, nullptr}));
    for (std::uint16_t type : std::array<std::uint16_t, 5>{0, 14, 15, 19, 65535})
        EXPECT_FALSE(tags.Add({1, type, 1, "x"})) << type;
    EXPECT_FALSE(tags.Add({1, 12, 1, nullptr}));
    EXPECT_FALSE(tags.Add({1, 12, 4000000000u, "x"}));
    ZrBitmapTagList const copy = tags;
    tags = {};
    ASSERT_EQ(copy.Size(), 2);
    EXPECT_EQ(copy[1].Id, 7);
    EXPECT_EQ(copy.Find(8), nullptr);
    EXPECT_EQ(static_cast<double const*>(copy.Find(33550)->pData)[2], 3);
}

TEST(GeoTIFF, EveryStateZoneAndEveryUtmZoneComesBackAsItself) {
    int coded = 0;
    auto const roundTrip = [&coded](PROJDATA const& record, DatumType datum) {
        Made const made(record, datum);
        if (!made.refusal.empty())
            return;
        Read const back(made.tags);
        ASSERT_EQ(back.flags, 19u);
        EXPECT_EQ(back.datum, datum);
        PROJDATA was = record, is = back.projection;
        coded += is.Type == was.Type;
        CProjector a(&was), b(&is);
        ASSERT_TRUE(a.GetInfo(&was));
        if (was.Zone != 0 || was.Type != is.Type)
            ProjGetStateZoneParams(&was);
        PROJPOINT p{was.Lon0 + 1, was.Lat0 + 1}, q = p;
        if (a.Forward(&p, 1) && std::fabs(p.x) < 1e9) {
            EXPECT_TRUE(b.Forward(&q, 1));
            EXPECT_NEAR(p.x, q.x, 1e-5);
            EXPECT_NEAR(p.y, q.y, 1e-5);
        }
    };
    for (int zone = 0; zone < StateZoneTypeNone; ++zone)
        for (ProjType type : {ProjTypeStatePlane1927, ProjTypeStatePlane1983}) {
            SCOPED_TRACE(zone);
            bool const old = type == ProjTypeStatePlane1927;
            PROJDATA record = recordOf(type, old ? EllipsoidTypeClarke1866 : EllipsoidTypeGrs1980Iugg1980);
            record.Zone = static_cast<StateZoneType>(zone);
            record.Scale = old ? 3937.0 / 1200 : 1;
            if (ProjCheckParams(&record, nullptr, false) == 0)
                roundTrip(record, old ? DatumTypeNorthAmericanDatum1927 : DatumTypeNorthAmericanDatum1983);
        }
    EXPECT_GT(coded, 230);
    coded = 0;
    for (int zone = 1; zone <= 60; ++zone)
        for (bool south : {false, true}) {
            PROJDATA record = utm(zone * 6 - 183);
            record.bSouth = south;
            roundTrip(record, DatumTypeWorldGeodeticSystem1984);
        }
    EXPECT_EQ(coded, 120);
}

TEST(GeoTIFF, FeetBecomeScaleWithTheFalseOriginInMetres) {
    ZrBitmapTagList tags;
    addShorts(tags, 34735,
              {1, 1,     0,    8, 1024, 0, 1,    1, 2048, 0,    1,    4269,  3072, 0, 1,    32767, 3074, 0,
               1, 32767, 3075, 0, 1,    1, 3076, 0, 1,    9003, 3080, 34736, 1,    0, 3082, 34736, 1,    1});
    addDoubles(tags, 34736, {-90, 1640416.666666667});
    Read const read(tags);
    EXPECT_EQ(read.flags, 19u);
    EXPECT_EQ(value(read.projection.Type), ProjTypeTransverseMercator);
    EXPECT_EQ(value(read.projection.Scale), 3937.0 / 1200);
    EXPECT_NEAR(read.projection.xOrg, 500000, 1e-6);
    EXPECT_EQ(read.datum, DatumTypeNorthAmericanDatum1983);
    EXPECT_EQ(value(read.params.Ellipsoid), EllipsoidTypeGrs1980Iugg1980);
}

TEST(GeoTIFF, GradsAndSizesOfTheFilesOwnAreHonoured) {
    ZrBitmapTagList tags;
    addShorts(tags, 34735,
              {1,    1, 0, 9, 1024, 0, 1, 1,     2054, 0,     1, 9105, 2056, 0,     1, 7011, 3072, 0,     1, 32767,
               3075, 0, 1, 1, 3076, 0, 1, 32767, 3077, 34736, 1, 0,    3081, 34736, 1, 1,    3083, 34736, 1, 2});
    addDoubles(tags, 34736, {20, 50, 100});
    Read const read(tags);
    EXPECT_EQ(read.flags, 17u); // an ellipsoid is no datum
    EXPECT_EQ(value(read.projection.Lat0), 45);
    EXPECT_EQ(value(read.projection.Scale), 1 / 20.0);
    EXPECT_EQ(value(read.projection.yOrg), 2000);
    EXPECT_EQ(value(read.projection.Ellipsoid), EllipsoidTypeUserDefined); // and not the catalogue's nearest
    EXPECT_EQ(value(read.projection.MajorRadius), 6378249.2);
}

TEST(GeoTIFF, PixelsCountFromTheCorner) {
    auto const placed = [](std::uint16_t raster, std::uint16_t id, std::vector<double> const& values,
                           std::vector<double> const& tie) {
        ZrBitmapTagList tags;
        addShorts(tags, 34735, {1, 1, 0, 1, 1025, 0, 1, raster});
        addDoubles(tags, id, values);
        addDoubles(tags, 33922, tie);
        return tags;
    };
    std::vector<double> const tie{10, 20, 0, 1000, 2000, 0},
        matrix{2, 1, 0, 100, 3, -4, 0, 200, 0, 0, 0, 0, 0, 0, 0, 1};
    expectCoefficients(Read(placed(1, 33550, {2, 4, 0}, tie)).georef, {2, 0, 980, 0, -4, 2080});
    expectCoefficients(Read(placed(2, 33550, {2, 4, 0}, tie)).georef, {2, 0, 979, 0, -4, 2082});
    expectCoefficients(Read(placed(1, 34264, matrix, tie)).georef, {2, 1, 100, 3, -4, 200});
    expectCoefficients(Read(placed(2, 34264, matrix, tie)).georef, {2, 1, 98.5, 3, -4, 200.5});

    ZrBitmapTagList const mirrored = placed(1, 33550, {2, -4, 0}, tie); // rows run north
    expectCoefficients(Read(mirrored).georef, {2, 0, 980, 0, 4, 1920});
    EXPECT_NE(explained(mirrored).find("mirrored"), std::string::npos);

    ZrBitmapTagList points;
    addShorts(points, 34735, {1, 1, 0, 1, 1025, 0, 1, 2});
    addDoubles(points, 33922, {0, 0, 0, 10, 20, 0, 9, 0, 0, 100, 20, 0, 0, 9, 0, 10, -70, 0});
    Read const read(points);
    EXPECT_EQ(read.flags, 24u);
    EXPECT_EQ(read.georef.Method, TransformMethodAffinePolynomial);
    ASSERT_EQ(read.georef.nControls, 3);
    EXPECT_EQ(read.georef.pSource[1].x, 9.5);
    EXPECT_EQ(read.georef.pTarget[2].y, -70);
}

TEST(GeoTIFF, PlacementsThatPlaceNothingAreNotRead) {
    std::vector<double> const tie{0, 0, 0, 1, 2, 0};
    for (std::vector<double> const& scale : std::vector<std::vector<double>>{
             {nan, 1, 0}, {1, inf, 0}, {0, 1, 0}, {1, 0, 0}, {1}, {1e308, 1e308, 0}, {1e-308, 1e-308, 0}}) {
        ZrBitmapTagList tags;
        addDoubles(tags, 33550, scale);
        addDoubles(tags, 33922, tie);
        EXPECT_EQ(Read(tags).flags, 16u);
        EXPECT_NE(explained(tags), "");
    }
    for (double last : {0.0, 2.0, nan}) {
        ZrBitmapTagList tags;
        addDoubles(tags, 34264, {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, last});
        EXPECT_EQ(Read(tags).flags, 16u);
    }
    ZrBitmapTagList two;
    addDoubles(two, 33922, {0, 0, 0, 1, 2, 0, 5, 5, 0, 6, 7, 0});
    EXPECT_EQ(Read(two).flags, 16u);
    EXPECT_EQ(Read(ZrBitmapTagList()).flags, 0u);
    EXPECT_TRUE(Read(ZrBitmapTagList()).good);
}

TEST(GeoTIFF, DamagedDirectoriesAreRefusedWhole) {
    using Shorts = std::vector<std::uint16_t>;
    for (Shorts const& directory :
         std::vector<Shorts>{{1, 1, 0},                                     // cut short
                             {2, 1, 0, 0},                                  // another version
                             {1, 1, 0, 65535, 1024, 0, 1, 1},               // more keys than there are
                             {1, 1, 0, 1, 3082, 34736, 1, 2},               // a number outside
                             {1, 1, 0, 1, 3082, 34736, 65535, 1},           // numbers outside
                             {1, 1, 0, 1, 3082, 34736, 1, 1},               // not a number
                             {1, 1, 0, 1, 1026, 34737, 9, 0},               // a text that goes on beyond the end
                             {1, 1, 0, 1, 1026, 34735, 1, 0},               // a tag that holds no values
                             {1, 1, 0, 2, 1024, 0, 1, 1, 1024, 0, 1, 2}}) { // two keys that contradict each other
        ZrBitmapTagList tags;
        addShorts(tags, 34735, directory);
        addDoubles(tags, 34736, {1, nan});
        addText(tags, 34737, "text|");
        Read const read(tags);
        EXPECT_FALSE(read.good);
        EXPECT_EQ(read.flags, 0u);
        EXPECT_EQ(value(read.projection.Type), ProjTypeUndefined);
        EXPECT_NE(explained(tags), "");
    }
    ZrBitmapTagList wrongType;
    addDoubles(wrongType, 34735, {1, 1, 0, 0});
    EXPECT_FALSE(Read(wrongType).good);
}

/// Tags of keys with their values, of doubles at the given places of {...numbers} and of one text.
ZrBitmapTagList keyed(std::vector<std::uint16_t> const& keys, std::vector<double> const& numbers = {},
                      std::string const& text = {}) {
    std::vector<std::uint16_t> directory{1, 1, 0, static_cast<std::uint16_t>(keys.size() / 4)};
    directory.insert(directory.end(), keys.begin(), keys.end());
    ZrBitmapTagList tags;
    addShorts(tags, 34735, directory);
    if (!numbers.empty())
        addDoubles(tags, 34736, numbers);
    if (!text.empty())
        addText(tags, 34737, text + '|');
    return tags;
}

TEST(GeoTIFF, AKeyMayBeRepeatedWithItsValue) {
    Read const read(keyed({1024, 0, 1, 1, 3072, 0, 1, 32617, 3072, 0, 1, 32617}));
    EXPECT_EQ(read.flags, 19u);
}

TEST(GeoTIFF, TheMapOfTheWebMayBeSaidByACitationAlone) {
    for (std::string const name : {"Google Maps Global Mercator", "WGS 84 / Pseudo-Mercator",
                                   "PCS Name = WGS_1984_Web_Mercator_Auxiliary_Sphere"}) {
        auto const size = static_cast<std::uint16_t>(name.size() + 1);
        Read const described(keyed({1024, 0, 1,    1, 2048, 0,     1,    4326, 3072, 0, 1,    32767, 3073, 34737,
                                    size, 0, 3074, 0, 1,    32767, 3075, 0,    1,    7, 3076, 0,     1,    9001},
                                   {}, name));
        Read const named(keyed({1024, 0, 1, 1, 3072, 0, 1, 32767, 3073, 34737, size, 0}, {}, name));
        for (Read const* read : {&described, &named}) {
            EXPECT_EQ(read->flags, 19u) << name;
            EXPECT_EQ(value(read->projection.Type), ProjTypeMercator);
            EXPECT_EQ(value(read->projection.MajorRadius), 6378137);
            EXPECT_EQ(value(read->projection.Flattening), 0);
            EXPECT_EQ(read->datum, DatumTypeWorldGeodeticSystem1984);
        }
        Made const made(described.projection, described.datum);
        EXPECT_EQ(Read(made.tags).flags, 19u) << made.refusal;
        EXPECT_EQ(value(Read(made.tags).projection.Flattening), 0);
    }
}

TEST(GeoTIFF, AxesBesideANumberAreTheRegistersToAMillimetreAndElseTheFiles) {
    auto const withAxes = [](double radius, double inverse) {
        return keyed({1024, 0, 1, 1, 2057, 34736, 1, 0, 2059, 34736, 1, 1, 3072, 0, 1, 32617}, {radius, inverse});
    };
    Read const near(withAxes(6378137.0004, 298.257222));
    EXPECT_EQ(near.flags, 19u);
    EXPECT_EQ(value(near.projection.Ellipsoid), EllipsoidTypeWgs84);
    EXPECT_EQ(explained(withAxes(6378137.0004, 298.257222)), "");
    Read const far(withAxes(6378140, 298.257));
    EXPECT_EQ(far.flags, 17u); // and on no datum
    EXPECT_EQ(value(far.projection.MajorRadius), 6378140);
    EXPECT_NE(explained(withAxes(6378140, 298.257)).find("the semi-major axis 6378140 m instead of 6378137 m"),
              std::string::npos);
}

TEST(GeoTIFF, AProjectedSystemMayStandBesideAnotherGeographicOneOfItsFigure) {
    auto const beside = [](std::uint16_t geographic) {
        return keyed({1024, 0, 1, 1, 2048, 0, 1, geographic, 3072, 0, 1, 26917});
    };
    EXPECT_EQ(Read(beside(4152)).datum, DatumTypeNorthAmericanDatum1983);
    EXPECT_NE(explained(beside(4152)).find("the projected system's is taken"), std::string::npos);
    EXPECT_EQ(Read(beside(4267)).flags, 16u);
}

TEST(GeoTIFF, ASystemOfThreeDimensionsIsReadByItsHorizontalPart) {
    EXPECT_EQ(Read(keyed({1024, 0, 1, 2, 2048, 0, 1, 4979})).datum, DatumTypeWorldGeodeticSystem1984);
    EXPECT_EQ(Read(keyed({1024, 0, 1, 1, 3072, 0, 1, 5498})).flags, 16u); // geographic, with heights
}

TEST(GeoTIFF, WritesTheRegistersNumberWhereItReadsBackAsTheSameRecord) {
    auto const numberOf = [](std::uint16_t system) {
        Read const read(keyed({1024, 0, 1, 1, 3072, 0, 1, system}));
        Made const made(read.projection, read.datum, &read.params);
        auto const* const tag = made.tags.Find(34735);
        auto const* const keys = static_cast<std::uint16_t const*>(tag->pData);
        for (std::uint32_t i = 4; i + 3 < tag->Count; i += 4)
            if (keys[i] == 3072)
                return keys[i + 3];
        return std::uint16_t{0};
    };
    for (int const system : {3857, 3395, 32617, 23031, 26729, 2226, 32188, 3413, 26910})
        EXPECT_EQ(numberOf(static_cast<std::uint16_t>(system)), system);
}

TEST(GeoTIFF, DatumsComeByNumberByNameAndByShifts) {
    auto const datumOf = [](std::vector<std::uint16_t> keys, std::string const& text) {
        std::vector<std::uint16_t> directory{1, 1, 0, static_cast<std::uint16_t>(keys.size() / 4)};
        directory.insert(directory.end(), keys.begin(), keys.end());
        ZrBitmapTagList tags;
        addShorts(tags, 34735, directory);
        addDoubles(tags, 34736, {10, 20, 30, 1, 2, 3, 4});
        addText(tags, 34737, text);
        Read const read(tags);
        EXPECT_EQ(value(read.projection.Type), ProjTypeUnprojectedLatLong) << explained(tags);
        EXPECT_EQ((read.flags & 2) != 0, read.datum != DatumTypeNone);
        return std::pair(read.datum, read.params);
    };
    EXPECT_EQ(datumOf({1024, 0, 1, 2, 2048, 0, 1, 4230}, "").first, 5);
    EXPECT_EQ(datumOf({1024, 0, 1, 2, 2050, 0, 1, 6322}, "").first, DatumTypeWorldGeodeticSystem1972);
    EXPECT_EQ(datumOf({1024, 0, 1, 2, 2048, 0, 1, 4258}, "").first, DatumTypeNone); // not in the catalogue
    EXPECT_EQ(datumOf({1024, 0, 1, 2, 2048, 0, 1, 4275}, "").first, DatumTypeNone); // there on another ellipsoid
    std::string const name = "Datum = European 1950 - Malta|";
    EXPECT_EQ(datumOf({1024, 0, 1, 2, 2049, 34737, 30, 0, 2056, 0, 1, 7022}, name).first, 74);
    EXPECT_EQ(datumOf({1024, 0, 1, 2, 2049, 34737, 30, 0, 2056, 0, 1, 7030}, name).first, DatumTypeNone);
    auto const [type, shifts] = datumOf({1024, 0, 1, 2, 2056, 0, 1, 7022, 2062, 34736, 7, 0}, "");
    EXPECT_EQ(type, DatumTypeUserDefined);
    EXPECT_EQ(value(shifts.Method), DatumMethodBursaWolf);
    EXPECT_EQ(value(shifts.Ellipsoid), EllipsoidTypeInternational1924);
    EXPECT_EQ(value(shifts.rX), 1);
    EXPECT_EQ(value(shifts.Scale), 4);
}

TEST(GeoTIFF, DatumsSurviveTheWayToTagsAndBack) {
    for (int i = 1; i < DatumTypeNone; ++i) {
        auto const datum = static_cast<DatumType>(i);
        DATUM2WGS84 params = {};
        if (!DatGetDatumParams(datum, &params) || params.PrimeMeridian != 0)
            continue;
        PROJDATA const record = recordOf(ProjTypeUnprojectedLatLong, params.Ellipsoid);
        Made const made(record, datum);
        Read const back(made.tags);
        ASSERT_EQ(back.flags, 19u) << i;
        DATUM2WGS84 found = {};
        DatGetDatumParams(back.datum, &found);
        EXPECT_TRUE(test::sameBytes(found, params)) << i << " came back as " << back.datum;
    }
    DATUM2WGS84 own = {};
    own.Method = DatumMethodMolodensky;
    own.Ellipsoid = EllipsoidTypeAiry1830;
    own.dX = 375, own.dY = -111, own.dZ = 431;
    Made const made(recordOf(ProjTypeUnprojectedLatLong, EllipsoidTypeAiry1830), DatumTypeUserDefined, &own);
    Read const back(made.tags);
    EXPECT_EQ(back.datum, DatumTypeUserDefined);
    EXPECT_EQ(value(back.params.dZ), 431);
}

TEST(GeoTIFF, RefusesRecordsThatTagsCannotSay) {
    PROJDATA const wgs = utm(9);
    for (ProjType type :
         {ProjTypeMollweide, ProjTypeBonne, ProjTypeEckertIV, ProjTypeEckertVI, ProjTypeRobinsonSterling}) {
        PROJDATA record = recordOf(type, EllipsoidTypeWgs84);
        record.Lat1 = 30;
        EXPECT_NE(Made(record, DatumTypeNone).refusal.find("no name for the projection"), std::string::npos);
    }
    for (ProjType type : {ProjTypeEquidistantCylindrical, ProjTypeMillerCylindrical, ProjTypeVanDerGrinten}) {
        EXPECT_NE(Made(recordOf(type, EllipsoidTypeWgs84), DatumTypeNone).refusal, "");
        PROJDATA sphere = recordOf(type, EllipsoidTypeUserDefined);
        sphere.MajorRadius = 6371000;
        EXPECT_EQ(Made(sphere, DatumTypeNone).refusal, "");
    }
    EXPECT_NE(Made(wgs, DatumTypeNorthAmericanDatum1927).refusal, "");          // another ellipsoid
    EXPECT_NE(Made(wgs, DatumTypeNtfFranceParisMeridianBursaWolf).refusal, ""); // from Paris
    EXPECT_NE(Made(wgs, DatumTypeUserDefined).refusal, "");                     // without its parameters
    EXPECT_NE(Made(wgs, static_cast<DatumType>(-7)).refusal, "");
    PROJDATA beyond = recordOf(ProjTypeTransverseMercator, EllipsoidTypeWgs84);
    beyond.Lat0 = 100;
    EXPECT_NE(Made(beyond, DatumTypeNone).refusal, "");
    EXPECT_NE(Made(recordOf(ProjTypeUnprojectedLatLong, EllipsoidTypeNone), DatumTypeNone).refusal, "");
    EXPECT_NE(Made(recordOf(ProjTypeUndefined, EllipsoidTypeWgs84), DatumTypeWorldGeodeticSystem1984).refusal, "");
    PROJDATA twoPoints = recordOf(ProjTypeHotineObliqueMercator, EllipsoidTypeWgs84);
    twoPoints.Lat1 = 40, twoPoints.Lat2 = 50, twoPoints.Lon2 = 10, twoPoints.bRotate = true;
    EXPECT_NE(Made(twoPoints, DatumTypeNone).refusal, "");
    GEOREF const flat = coefficients(1, 0, 0, 1, 0, 0), wild = coefficients(1, 0, nan, 0, 1, 0);
    EXPECT_NE(Made(wgs, DatumTypeNone, nullptr, &flat).refusal, "");
    EXPECT_NE(Made(wgs, DatumTypeNone, nullptr, &wild).refusal, "");
    EXPECT_FALSE(ZrProjBuildGeoTIFFTags(&wgs, DatumTypeNone, nullptr, nullptr, nullptr, nullptr));
}

TEST(GeoTIFF, GeoreferencesComeBack) {
    PROJDATA const none = recordOf(ProjTypeUndefined, EllipsoidTypeNone);
    GEOREF const upright = coefficients(2, 0, 500000, 0, -2, 4000000), turned = coefficients(2, 1, 5, 1, -2, 6),
                 southUp = coefficients(2, 0, 5, 0, 2, 6);
    for (GEOREF const* georef : {&upright, &turned, &southUp}) {
        Made const made(none, DatumTypeNone, nullptr, georef);
        EXPECT_EQ(made.tags.Find(33550) != nullptr, georef == &upright);
        Read const back(made.tags);
        EXPECT_EQ(back.flags, 20u);
        EXPECT_TRUE(test::sameBytes(back.georef, *georef));
    }
    GEOREF helmert = {};
    ASSERT_TRUE(RefAllocControls(&helmert, 2));
    helmert.Method = TransformMethodHelmert;
    helmert.pSource[1] = {10, 0};
    helmert.pTarget[0] = {100, 200}, helmert.pTarget[1] = {100, 220};
    expectCoefficients(Read(Made(none, DatumTypeNone, nullptr, &helmert).tags).georef, {0, -2, 100, 2, 0, 200});
    RefFreeControls(&helmert);
}

TEST(GeoTIFF, AnAffineFitThatMeetsItsControlsIsNoLongerMadeOfThem) {
    PROJDATA const none = recordOf(ProjTypeUndefined, EllipsoidTypeNone);
    GEOREF upright = coefficients(0.3048, 0, 512345.678, 0, -0.3048, 4651234.567);
    ASSERT_TRUE(RefCoeffToControls(&upright, 5000, 3000));
    for (int i = 0; i < upright.nControls; ++i) // 15 digits, as in a reference file
        for (double* coordinate : {&upright.pTarget[i].x, &upright.pTarget[i].y})
            *coordinate = std::round(*coordinate * 1e8) / 1e8;
    Made const exact(none, DatumTypeNone, nullptr, &upright);
    Read const back(exact.tags);
    EXPECT_NE(exact.tags.Find(33550), nullptr); // upright: a scale, not a matrix
    EXPECT_EQ(back.flags, 20u);
    EXPECT_NEAR(back.georef.A, 0.3048, 1e-11);
    EXPECT_NEAR(back.georef.F, 4651234.567, 1e-7);
    upright.pTarget[2].x += 1e-6;
    EXPECT_EQ(Read(Made(none, DatumTypeNone, nullptr, &upright).tags).flags, 24u);
    RefFreeControls(&upright);
}

TEST(BitmapGeoParams, EachPartComesFromTheFirstThatHasIt) {
    TemporaryDirectory const directory;
    std::string const image = directory.file("map.tif");
    PROJDATA const zone = utm(9), other = utm(15);
    GEOREF const placed = coefficients(1, 0, 7, 0, -1, 8);
    Made const tags(other, DatumTypeWorldGeodeticSystem1984, nullptr, &placed);
    PROJDATA data = {};
    DatumType datum = {};
    GEOREF georef = {};
    std::uint32_t flags = 0;
    auto const look = [&] {
        RefFreeControls(&georef);
        return ZrProjGetBitmapGeoParams(image.c_str(), &tags.tags, &data, &datum, nullptr, &georef, &flags);
    };
    EXPECT_TRUE(look());
    EXPECT_EQ(flags, 23u);
    EXPECT_EQ(value(data.Lon0), 15);
    std::ofstream(image + ".zrr") << "Zorvane Cartographic Reference Information : Version 1.10\n"
                                     "Georef Method : Helmert\nGeoref Control Point Count : 4\n"; // but no points
    EXPECT_TRUE(look());
    EXPECT_EQ(georef.F, 8);
    // Known coefficients are but one number in a reference file, and yield.
    ASSERT_TRUE(ZrProjRefFileWriteEx(image.c_str(), &zone, DatumTypeNone, nullptr, &placed));
    EXPECT_TRUE(look());
    EXPECT_EQ(flags, 23u);
    EXPECT_EQ(value(data.Lon0), 9);
    EXPECT_EQ(datum, DatumTypeWorldGeodeticSystem1984);
    EXPECT_EQ(georef.F, 8);
    std::ofstream(directory.file("map.tfw")) << "3\n0\n0\n-3\n5\n6\n";
    EXPECT_TRUE(look());
    EXPECT_EQ(georef.F, 6);
    std::ofstream(directory.file("map.rsf")) << "2 1\n'a' 1 2 0 3 4 0 1\n";
    EXPECT_TRUE(look());
    EXPECT_EQ(flags, 27u);
    ASSERT_EQ(georef.nControls, 1);
    RefFreeControls(&georef);
    std::ofstream(image + ".zrr") << "no reference file\n";
    EXPECT_FALSE(look());
    EXPECT_EQ(value(data.Lon0), 15);
    RefFreeControls(&georef);
    EXPECT_FALSE(ZrProjGetBitmapGeoParams("", nullptr, &data, nullptr, nullptr, nullptr, &flags));
}

} // namespace
} // namespace ZrProj::test
