#include "door/parameters.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace ZrProj;
using namespace ZrProj::Door;

namespace {

zrproj_parameters of(int type, int ellipsoid = 0) {
    zrproj_parameters parameters{};
    parameters.size = sizeof parameters;
    parameters.type = type;
    parameters.ellipsoid = ellipsoid;
    parameters.datum = DatumTypeNone;
    return parameters;
}

/// Each field another number that it can hold.
zrproj_parameters allDifferent() {
    auto parameters = of(0);
    int next = 2;
    for (auto const& field : parameterFields) {
        if (field.number)
            parameters.*field.number = next++ + 0.25;
        else
            parameters.*field.whole = parameterRow(field.id)->quantity == Quantity::Flag ? 1 : next++;
    }
    return parameters;
}

std::string complaintOf(zrproj_parameters parameters) {
    auto const before = parameters;
    Answer const answer = complete(parameters);
    EXPECT_EQ(answer.isGood(), answer.message.empty());
    EXPECT_TRUE(answer.isGood() || answer.status == ZRPROJ_BAD_ARGUMENT || answer.status == ZRPROJ_BAD_DEFINITION);
    EXPECT_EQ(parameters.type, before.type);
    return answer.message;
}

} // namespace

TEST(DoorParameters, AreWhatARecordHolds) { // a packed record's members are taken by value: +
    auto const given = allDifferent();
    PROJDATA const record = recordOf(given);
    EXPECT_EQ(+record.Type, given.type);
    EXPECT_EQ(+record.xOrg, given.x0);
    EXPECT_EQ(+record.Lon3, given.lon3);
    EXPECT_EQ(+record.Zone, given.zone);
    EXPECT_TRUE(+record.bRotate);
    EXPECT_EQ(+record.Flattening, given.flattening);
    auto const back = parametersOf(record, DatumTypeNone, {});
    for (auto const& field : parameterFields)
        EXPECT_EQ(field.get(back), field.get(given)) << parameterRow(field.id)->name;

    auto flagged = of(ProjTypeUniversalTransverseMercator);
    flagged.south = -7; // whatever is not 0
    EXPECT_EQ(parametersOf(recordOf(flagged), DatumTypeNone, {}).south, 1);
}

TEST(DoorParameters, TellTheDatum) {
    auto own = of(ProjTypeBonne, EllipsoidTypeWgs84);
    EXPECT_FALSE(hasDatum(own));
    own.datum = DatumTypeUserDefined;
    EXPECT_FALSE(hasDatum(own));
    own.shift = {DatumMethodBursaWolf, 1, 2, 3, 4, 5, 6, 7, 8};
    EXPECT_TRUE(hasDatum(own));
    DATUM2WGS84 const shift = shiftOf(own);
    auto const told = parametersOf(recordOf(own), DatumTypeUserDefined, shift).shift;
    EXPECT_EQ(+shift.Ellipsoid, EllipsoidTypeWgs84);
    EXPECT_EQ(told.method, DatumMethodBursaWolf);
    EXPECT_EQ(told.dy, 2);
    EXPECT_EQ(told.rz, 6);
    EXPECT_EQ(told.scale, 7);
    EXPECT_EQ(told.prime_meridian, 8);

    auto listed = own; // its own shift is passed over
    listed.datum = DatumTypeEuropean1950Mean;
    EXPECT_TRUE(hasDatum(listed));
    EXPECT_EQ(+shiftOf(listed).Method, DatumMethodMolodensky);
    EXPECT_EQ(+shiftOf(listed).dX, -87);
    listed.datum = DatumTypeNad1927ConusNadcon; // by a grid, which no parameters say
    EXPECT_EQ(+shiftOf(listed).Method, DatumMethodNadcon);
    EXPECT_EQ(+shiftOf(listed).dX, 0);
}

// The figure of a geographic system is that of its datum, which alone a record has.
TEST(DoorParameters, HaveTheFigureOfTheDatumWhereNothingIsProjected) {
    DATUM2WGS84 shift{};
    shift.Ellipsoid = EllipsoidTypeUserDefined;
    shift.MajorRadius = 6377000;
    shift.Flattening = 0.003;
    PROJDATA record{};
    record.Ellipsoid = EllipsoidTypeWgs84;
    auto const geographic = parametersOf(record, DatumTypeUserDefined, shift);
    EXPECT_EQ(geographic.ellipsoid, 0);
    EXPECT_EQ(geographic.radius, 6377000);
    EXPECT_EQ(geographic.flattening, 0.003);
    record.Type = ProjTypeBonne;
    EXPECT_EQ(parametersOf(record, DatumTypeUserDefined, shift).ellipsoid, EllipsoidTypeWgs84);
}

TEST(DoorParameters, TakeAnEllipsoidFromWhereverItIsTold) {
    auto byNumber = of(ProjTypeMercator, EllipsoidTypeClarke1866);
    byNumber.radius = 1; // the number counts
    EXPECT_EQ(complaintOf(byNumber), "");
    ASSERT_TRUE(complete(byNumber).isGood());
    EXPECT_EQ(byNumber.radius, 6378206.4);
    EXPECT_EQ(byNumber.scale, 1);
    EXPECT_EQ(byNumber.k0, 1);

    auto byDatum = of(ProjTypeMercator);
    byDatum.datum = DatumTypeNorthAmericanDatum1927;
    ASSERT_TRUE(complete(byDatum).isGood());
    EXPECT_EQ(byDatum.ellipsoid, EllipsoidTypeClarke1866);

    auto byZone = of(ProjTypeStatePlane1927, EllipsoidTypeWgs84);
    byZone.zone = StateZoneTypeCaliforniaI;
    ASSERT_TRUE(complete(byZone).isGood());
    EXPECT_EQ(byZone.ellipsoid, EllipsoidTypeClarke1866);
}

TEST(DoorParameters, AreRefusedOneByOne) {
    auto const sphere = [] {
        auto parameters = of(ProjTypeMercator);
        parameters.radius = 6371000;
        return parameters;
    };
    EXPECT_EQ(complaintOf(sphere()), "");
    for (auto const& field : parameterFields)
        if (field.number)
            for (double const wild : {std::nan(""), HUGE_VAL}) {
                auto parameters = sphere();
                parameters.*field.number = wild;
                EXPECT_EQ(complaintOf(parameters), "a parameter is not finite") << parameterRow(field.id)->name;
            }
    auto shifted = sphere();
    shifted.shift.rz = -HUGE_VAL;
    EXPECT_EQ(complaintOf(shifted), "a parameter is not finite");
    auto const refused = [&](auto field, auto value) {
        auto parameters = sphere();
        parameters.*field = value;
        EXPECT_NE(complaintOf(parameters), "") << value;
    };
    for (int const type : {-1, 29, 1000})
        refused(&zrproj_parameters::type, type);
    for (int const ellipsoid : {-1, static_cast<int>(EllipsoidTypeNone), 1 << 30})
        refused(&zrproj_parameters::ellipsoid, ellipsoid);
    for (int const datum : {-1, 238})
        refused(&zrproj_parameters::datum, datum);
    for (double const radius : {0.0, -6371000.0})
        refused(&zrproj_parameters::radius, radius);
    for (double const flattening : {-0.001, 1.0})
        refused(&zrproj_parameters::flattening, flattening);
    for (double const latitude : {90.0, -361.0, -91.0, std::nextafter(90.0, 91.0)})
        refused(&zrproj_parameters::lat0, latitude);
    auto polar = sphere();
    polar.type = ProjTypeStereographic;
    polar.lat0 = -90;
    EXPECT_EQ(complaintOf(polar), "");
    polar.lat3 = 90.5;
    EXPECT_EQ(complaintOf(polar), "the latitude lat3 is not within 90 degrees either way");

    auto gridded = sphere();
    gridded.datum = DatumTypeUserDefined;
    gridded.shift.method = DatumMethodNadcon;
    EXPECT_NE(complaintOf(gridded).find("Bursa-Wolf"), std::string::npos);
}
