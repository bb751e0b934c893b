#include "systems/datum_link.h"

#include "systems/register.h"

#include <gtest/gtest.h>

using namespace ZrProj::systems;

namespace {

constexpr Code wgs84 = 6326, wgs84G730 = 1152, wgs84G1762 = 1156, nad27 = 6267, nad83 = 6269, ntf = 6275,
               ntfParis = 6807;

std::optional<DatumLink> linkOf(Code a, Code b) {
    return linkBetween(*datumOf(a), *datumOf(b));
}

/// A datum that no register has.
Datum local(std::string name = "Site 3") {
    Datum datum;
    datum.name = std::move(name);
    datum.ellipsoid = {"any", 6378137, 298.25, 0};
    return datum;
}

} // namespace

TEST(DatumLink, OneDatumWhateverItsMeridian) {
    for (auto const& [a, b] : {std::pair(nad27, nad27), {ntf, ntfParis}, {ntfParis, ntf}}) {
        auto const link = linkOf(a, b);
        ASSERT_TRUE(link) << a << ' ' << b;
        EXPECT_EQ(link->accuracy, 0);
        EXPECT_EQ(link->told, "");
    }
    EXPECT_FALSE(linkOf(nad27, nad83));
    EXPECT_FALSE(linkOf(nad83, wgs84)); // which many take for one
}

TEST(DatumLink, RealizationsOfOneEnsembleAreAsNearAsItIsAccurate) {
    for (auto const& [a, b] : {std::pair(wgs84, wgs84G730), {wgs84G1762, wgs84}, {wgs84G730, wgs84G1762}}) {
        auto const link = linkOf(a, b);
        ASSERT_TRUE(link) << a << ' ' << b;
        EXPECT_EQ(link->accuracy, 2);
        EXPECT_NE(link->told.find("World Geodetic System 1984 ensemble"), std::string::npos) << link->told;
    }
}

TEST(DatumLink, WithoutCodesNameFigureAndWayMustAgree) {
    Datum const site = local();
    EXPECT_TRUE(linkBetween(site, local("SITE 3")));
    EXPECT_FALSE(linkBetween(site, local("Site 4")));
    EXPECT_TRUE(linkBetween(local("unknown"), local("Unknown based on Airy")));
    Datum other = site;
    other.ellipsoid.inverseFlattening = 298.26;
    EXPECT_FALSE(linkBetween(site, other));
    other = site;
    other.toWgs84 = ToWgs84{1};
    EXPECT_FALSE(linkBetween(site, other));
    other = site;
    other.grids = "site.gsb";
    EXPECT_FALSE(linkBetween(site, other));
    EXPECT_FALSE(linkBetween(local("North American Datum 1927"), *datumOf(nad27))); // only one has a code
}

TEST(DatumLink, AShiftOfItsOwnMakesAnotherDatum) {
    Datum own = *datumOf(6326);
    own.toWgs84 = ToWgs84{};
    EXPECT_TRUE(linkBetween(own, *datumOf(wgs84)));
    own.toWgs84 = ToWgs84{100};
    EXPECT_FALSE(linkBetween(own, *datumOf(wgs84)));
    EXPECT_FALSE(linkBetween(*datumOf(wgs84G730), own));
    EXPECT_TRUE(linkBetween(own, own));

    Datum german = *datumOf(6314); // with the register's own way, DHDN to WGS 84 (2)
    german.toWgs84 = ToWgs84{598.1, 73.7, 418.2, 0.202, 0.045, -2.455, 6.7};
    EXPECT_TRUE(linkBetween(german, *datumOf(6314)));
    german.toWgs84->front() += 1;
    EXPECT_FALSE(linkBetween(german, *datumOf(6314)));
}
