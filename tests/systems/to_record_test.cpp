#include "systems/to_record.h"

#include "systems/register.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace ZrProj;
using namespace ZrProj::systems;

namespace {

SystemRecord record(Code code) {
    auto const made = recordOf(*definitionOf(code));
    auto const* const unsupported = std::get_if<Unsupported>(&made);
    EXPECT_EQ(unsupported, nullptr) << code << ": " << unsupported->reason;
    return unsupported ? SystemRecord{} : std::get<SystemRecord>(made);
}

std::string reasonFor(Code code) {
    auto const made = recordOf(*definitionOf(code));
    auto const* const unsupported = std::get_if<Unsupported>(&made);
    return unsupported ? unsupported->reason : "";
}

SystemConverter converterOf(Definition const& system) {
    auto const conversion = conversionOf(system);
    return std::get<SystemConverter>(SystemConverter::make(std::get<Conversion>(conversion)));
}

/// A place of the area of use, near the central meridian, where the series of records holds.
PROJPOINT placeIn(Definition const& system, PROJDATA const& projection) {
    auto const area = system.area.value_or(Area{});
    double const width = area.west <= area.east ? area.east - area.west : area.east - area.west + 360;
    double longitude = area.west + width / 2;
    if (projection.Type == ProjTypeTransverseMercator || projection.Type == ProjTypeUniversalTransverseMercator)
        longitude = projection.Lon0 - std::copysign(1, projection.Lon0); // within the globe's one turn
    return {std::remainder(longitude, 360), (area.south + area.north) / 2};
}

template <class T> T value(T field) { // no reference may be bound to a packed one
    return field;
}

} // namespace

TEST(ToRecord, ComputesWhatTheDefinitionDoes) {
    int count = 0, rounded = 0; // by the register, in zones of 1927
    for (std::size_t n = 0; n < entryCount(); ++n) {
        auto const system = *definitionOf(entry(n).code);
        auto const made = recordOf(system);
        auto const* const said = std::get_if<SystemRecord>(&made);
        if (!said || !system.isProjected())
            continue;
        SCOPED_TRACE(system.name + ' ' + std::to_string(system.code));
        PROJDATA projection = said->projection;
        PROJPOINT expected = placeIn(system, projection), p = expected;
        CProjector projector(&projection);
        converterOf(system).forward(&expected, 1);
        ASSERT_TRUE(projector.Forward(&p, 1));
        double const apart = std::hypot(p.x - expected.x, p.y - expected.y) * system.unit.factor;
        bool const isZone = projection.Type == ProjTypeStatePlane1927 || projection.Type == ProjTypeStatePlane1983;
        EXPECT_LT(apart, isZone ? 4e-3 : 1e-3);
        rounded += apart > 1e-3;
        ++count;
    }
    EXPECT_GT(count, 5000);
    EXPECT_LT(rounded, 30);
}

TEST(ToRecord, ZonesAreThemselves) {
    auto const utm = record(26917), south = record(32733), inFeet = record(2226), old = record(26729);
    EXPECT_EQ(value(utm.projection.Type), ProjTypeUniversalTransverseMercator);
    EXPECT_EQ(value(utm.projection.Lon0), -81);
    EXPECT_EQ(utm.datum, DatumTypeNorthAmericanDatum1983);
    EXPECT_TRUE(south.projection.bSouth);
    EXPECT_EQ(value(inFeet.projection.Type), ProjTypeStatePlane1983);
    EXPECT_EQ(value(inFeet.projection.Zone), StateZoneTypeCaliforniaII);
    EXPECT_EQ(value(inFeet.projection.Scale), 3937.0 / 1200);
    EXPECT_EQ(value(old.projection.Zone), StateZoneTypeAlabamaEast);
    EXPECT_EQ(value(record(26731).projection.Zone), StateZoneTypeAlaska1);
    // Two zones of one definition.
    EXPECT_EQ(value(record(32111).projection.Zone), StateZoneTypeNewJersey);
    EXPECT_EQ(value(record(32115).projection.Zone), StateZoneTypeNewYorkEast);
}

TEST(ToRecord, TheMapOfTheWebIsASpheresMercatorOnWgs84) {
    auto const [projection, datum, parameters, noDatum] = record(3857);
    EXPECT_EQ(value(projection.Type), ProjTypeMercator);
    EXPECT_EQ(value(projection.MajorRadius), 6378137);
    EXPECT_EQ(value(projection.Flattening), 0);
    EXPECT_EQ(value(projection.Ellipsoid), EllipsoidTypeUserDefined);
    EXPECT_EQ(datum, DatumTypeWorldGeodeticSystem1984);
    EXPECT_EQ(value(parameters.Ellipsoid), EllipsoidTypeWgs84);
}

TEST(ToRecord, LongitudesFromAnotherMeridianAreCountedFromGreenwich) {
    EXPECT_NEAR(record(27572).projection.Lon0, 2.33722917, 1e-8);
    EXPECT_EQ(reasonFor(4807), "longitudes are not counted from Greenwich");
}

TEST(ToRecord, TellsWhatNoRecordSays) {
    EXPECT_EQ(reasonFor(2046), "the records' coordinates grow to the east and north");
    EXPECT_EQ(reasonFor(28992), "no record says the projection Oblique Stereographic");
    EXPECT_NE(reasonFor(29873).find("by its azimuth, not by another angle"), std::string::npos);
    auto const system = record(25832);
    EXPECT_EQ(system.datum, DatumTypeNone);
    EXPECT_EQ(system.noDatum, "datum 6258 is not one of the catalogue's");
}
