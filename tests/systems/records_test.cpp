#include "systems/records.h"

#include "support/cases.h"
#include "systems/register.h"

#include <gtest/gtest.h>

using namespace ZrProj;
using namespace ZrProj::systems;

namespace {

/// A record that is complete, by the words of tests' cases.
PROJDATA completeRecord(std::string const& words) {
    PROJDATA record = test::recordOf(words);
    if (record.Ellipsoid != EllipsoidTypeUserDefined) {
        record.MajorRadius = EllipsoidRadius(record.Ellipsoid);
        record.Flattening = EllipsoidFlattening(record.Ellipsoid);
    }
    return record;
}

std::string unsaid(std::string const& words) {
    auto const said = definitionOf(completeRecord(words), DatumTypeNone, {});
    auto const* const why = std::get_if<Unsupported>(&said);
    return why ? why->reason : "";
}

} // namespace

TEST(SystemRecords, TakeTheRegistersDatumWhereTheFigureIsItsOwn) {
    PROJDATA const utm = completeRecord("type=utm ellipsoid=clarke-1866");
    EXPECT_EQ(datumOf(utm, DatumTypeNorthAmericanDatum1927, {}).code, 6267);
    PROJDATA const other = completeRecord("type=utm ellipsoid=airy-1830");
    Datum const contradicted = datumOf(other, DatumTypeNorthAmericanDatum1927, {});
    EXPECT_EQ(contradicted.code, 0); // its name alone decides nothing
    EXPECT_NEAR(contradicted.ellipsoid.semiMajor, 6377563.396, 1e-9);

    DATUM2WGS84 own{};
    own.Method = DatumMethodBursaWolf;
    own.dX = 1, own.rZ = 6, own.Scale = 7, own.PrimeMeridian = 2.5;
    Datum const ofUser = datumOf(utm, DatumTypeUserDefined, own);
    EXPECT_EQ(ofUser.toWgs84, (ToWgs84{1, 0, 0, 0, 0, 6, 7}));
    EXPECT_EQ(ofUser.meridian.longitude, 2.5);
    own.Method = DatumMethodMolodensky; // which turns nothing, whatever the fields hold
    EXPECT_EQ(datumOf(utm, DatumTypeUserDefined, own).toWgs84, ToWgs84{1});
    own.Method = DatumMethodNone;
    EXPECT_FALSE(datumOf(utm, DatumTypeUserDefined, own).toWgs84);
}

TEST(SystemRecords, SayWhatNoMethodCanSay) {
    EXPECT_EQ(unsaid("type=mercator ellipsoid=wgs-84"), "");
    EXPECT_NE(unsaid("type=mercator ellipsoid=wgs-84 lat0=10").find("another parallel than the equator"),
              std::string::npos);
    EXPECT_NE(unsaid("type=gnomonic ellipsoid=wgs-84 lat1=40").find("of a sphere on an ellipsoid"), std::string::npos);
}
