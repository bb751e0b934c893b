#include "systems/register.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

using namespace ZrProj::systems;

namespace {

bool has(std::vector<Entry> const& entries, Code code) {
    return std::any_of(entries.begin(), entries.end(), [code](Entry const& entry) { return entry.code == code; });
}

} // namespace

TEST(Register, EveryEntryIsWhole) {
    std::size_t projected = 0;
    for (std::size_t i = 0; i < entryCount(); ++i) {
        SCOPED_TRACE(entry(i).code);
        ASSERT_TRUE(i == 0 || entry(i - 1).code < entry(i).code);
        auto const system = definitionOf(entry(i).code);
        ASSERT_TRUE(system);
        EXPECT_EQ(system->code, entry(i).code);
        EXPECT_EQ(system->name, entry(i).name);
        EXPECT_EQ(system->isProjected(), entry(i).projected);
        EXPECT_FALSE(system->datum.name.empty());
        EXPECT_GT(system->datum.ellipsoid.semiMajor, 6.3e6);
        EXPECT_LT(system->datum.ellipsoid.semiMajor, 6.4e6);
        EXPECT_GT(system->unit.factor, 0);
        EXPECT_EQ(system->isProjected(), definitionOf(system->baseCode).has_value());
        EXPECT_TRUE(system->replacement == 0 || definitionOf(system->replacement));
        projected += system->isProjected();
    }
    EXPECT_EQ(entryCount(), 6122u);
    EXPECT_EQ(projected, 5499u);
}

TEST(Register, ProjectedSystemAsPublished) {
    auto const lambert = *definitionOf(2154); // as the French mapping agency defines it
    EXPECT_EQ(lambert.name, "RGF93 v1 / Lambert-93");
    EXPECT_EQ(lambert.method, Method::lambertConic2);
    EXPECT_EQ(lambert.parameters[Parameter::latitudeOfOrigin], 46.5);
    EXPECT_EQ(lambert.parameters[Parameter::longitudeOfOrigin], 3);
    EXPECT_EQ(lambert.parameters[Parameter::standardParallel1], 49);
    EXPECT_EQ(lambert.parameters[Parameter::standardParallel2], 44);
    EXPECT_EQ(lambert.parameters[Parameter::falseEasting], 700000);
    EXPECT_EQ(lambert.parameters[Parameter::falseNorthing], 6600000);
    EXPECT_FALSE(lambert.parameters.has(Parameter::scaleFactor));
    EXPECT_EQ(lambert.baseCode, 4171);
    EXPECT_EQ(lambert.datum.ellipsoid.name, "GRS 1980");
    EXPECT_EQ(lambert.datum.ellipsoid.inverseFlattening, 298.257222101);
    EXPECT_TRUE(lambert.area->contains(2.35, 48.85));
    EXPECT_FALSE(lambert.area->contains(13.4, 52.5));
}

TEST(Register, NumbersAreTheExactDecimalsInDegreesAndMetres) {
    auto const texas = *definitionOf(2277);
    EXPECT_DOUBLE_EQ(texas.parameters[Parameter::falseEasting], 2296583.333 * 1200 / 3937);
    EXPECT_EQ(texas.unit.factor, 1200.0 / 3937);
    EXPECT_EQ(definitionOf(27700)->parameters[Parameter::scaleFactor], 0.9996012717);
    EXPECT_DOUBLE_EQ(definitionOf(28992)->parameters[Parameter::latitudeOfOrigin], 52 + (9 + 22.178 / 60) / 60);
    EXPECT_EQ(definitionOf(27572)->parameters[Parameter::latitudeOfOrigin], 46.8); // 52 grads
    EXPECT_EQ(definitionOf(27572)->datum.meridian.longitude, 2.33722917);          // 2.5969213 grads
    EXPECT_DOUBLE_EQ(ellipsoidOf(7007)->semiMajor, 20926348 * 0.3047972654);
    EXPECT_EQ(ellipsoidOf(7048)->inverseFlattening, 0);
    EXPECT_DOUBLE_EQ(ellipsoidOf(7008)->inverseFlattening, 63782064.0 / 216226); // of 6378206.4 and 6356583.8
    EXPECT_DOUBLE_EQ(meridianOf(8909)->longitude, -(17 + 40 / 60.0));
}

TEST(Register, AxesAsTheAuthorityHasThem) {
    auto const lo29 = *definitionOf(2053); // westings and southings
    EXPECT_TRUE(lo29.x == Sense::negative && lo29.y == Sense::negative);
    EXPECT_FALSE(lo29.northingFirst);
    EXPECT_TRUE(definitionOf(4326)->northingFirst);
    EXPECT_FALSE(definitionOf(32617)->northingFirst);
    EXPECT_TRUE(definitionOf(31467)->northingFirst);        // Gauss-Kruger
    EXPECT_TRUE(definitionOf(32661)->northingFirst);        // about the north pole, along meridians
    EXPECT_FALSE(definitionOf(5041)->northingFirst);        // the same, easting first
    EXPECT_FALSE(definitionOf(3031)->northingFirst);        // about the south pole
    EXPECT_EQ(definitionOf(4807)->angularUnit.factor, 0.9); // grads
}

TEST(Register, DeprecatedSystemsNameTheirReplacement) {
    auto const old = *definitionOf(3785);
    EXPECT_TRUE(old.deprecated);
    EXPECT_EQ(old.replacement, 3857);
    EXPECT_FALSE(definitionOf(3857)->deprecated);
}

TEST(Register, SystemsWithHeightsGiveTheirHorizontalPart) {
    EXPECT_EQ(definitionOf(4979)->code, 4326);  // WGS 84 in three dimensions
    EXPECT_EQ(definitionOf(7415)->code, 28992); // RD New and heights
    EXPECT_EQ(definitionOf(900913)->code, 3857);
    EXPECT_EQ(definitionOf(9895)->baseCode, 4181);            // stands on a system in three dimensions
    for (Code const code : {0, -1, 5773, 4978, 65536 + 4326}) // heights alone, a geocentric system
        EXPECT_FALSE(definitionOf(code)) << code;
}

TEST(Register, SystemsAtAPlace) {
    auto const paris = systemsAt(2.35, 48.85);
    EXPECT_TRUE(has(paris, 2154) && has(paris, 4326) && has(paris, 32631));
    EXPECT_FALSE(has(paris, 28992) || has(paris, 3785));
    // Fiji's map grid crosses the antimeridian.
    for (double const longitude : {179.9, -179.9, 180.0, -180.0})
        EXPECT_TRUE(has(systemsAt(longitude, -17), 3460)) << longitude;
    EXPECT_FALSE(has(systemsAt(170, -17), 3460) || has(systemsAt(-170, -17), 3460));
    EXPECT_TRUE(systemsAt(std::nan(""), 0).empty());
}
