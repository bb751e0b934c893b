#include "systems/recognition.h"

#include "systems/register.h"

#include <gtest/gtest.h>

#include <utility>

using namespace ZrProj::systems;

namespace {

/// A definition as a text gives it that has neither codes nor areas.
Definition withoutCodes(Code code) {
    Definition system = *definitionOf(code);
    system.code = system.baseCode = system.conversionCode = system.replacement = 0;
    system.datum.code = system.datum.ellipsoid.code = system.datum.meridian.code = 0;
    system.unit.code = system.angularUnit.code = 0;
    system.area.reset();
    system.deprecated = false;
    return system;
}

} // namespace

TEST(Recognition, EverySystemByNamesAndNumbers) {
    for (std::size_t i = 0; i < entryCount(); ++i) {
        auto const registered = *definitionOf(entry(i).code);
        auto const& said = registered.deprecated ? registered : withoutCodes(registered.code);
        EXPECT_EQ(recognise(said), registered.code) << registered.name;
    }
}

TEST(Recognition, ByContentWhenTheNameIsAnother) {
    for (Code const code : {4326, 32617, 2154, 27700, 28992, 3857, 31467, 2277, 27572}) {
        Definition system = withoutCodes(code);
        system.name = "the county's own";
        EXPECT_EQ(recognise(system), code);
    }
}

TEST(Recognition, RoundedNumbersAreTheSame) {
    Definition system = withoutCodes(2277);
    system.unit.factor = 0.304800609601;
    system.parameters[Parameter::falseEasting] += 4e-5;
    system.parameters[Parameter::standardParallel1] += 4e-10;
    system.datum.ellipsoid.inverseFlattening = 298.257222;
    EXPECT_EQ(recognise(system), 2277);
}

TEST(Recognition, RoundingOfOtherMakersIsTheSame) {
    struct {
        Code code;
        Parameter parameter;
        double said;
    } const cases[] = {
        {2276, Parameter::falseNorthing, 6561666.666666666 * 12 / 39.37}, // EPSG says 6561666.667 feet
        {3358, Parameter::falseEasting, 609601.2192024384},               // EPSG says 609601.22
        {2236, Parameter::scaleFactor, 0.9999411764705882},               // EPSG says 0.999941177
    };
    for (auto const& c : cases) {
        Definition system = *definitionOf(c.code);
        EXPECT_NEAR(system.parameters[c.parameter], c.said, 1e-3);
        EXPECT_NE(system.parameters[c.parameter], c.said);
        system.parameters[c.parameter] = c.said;
        EXPECT_EQ(reconcile(system).noticed, "");
        system.code = 0, system.name = "the county's own";
        EXPECT_EQ(recognise(system), c.code);
    }
    Definition apart = *definitionOf(3358);
    apart.parameters[Parameter::falseEasting] += 2e-3;
    EXPECT_EQ(recognise(apart), 0);
}

TEST(Recognition, StandardParallelsHaveNoOrder) {
    for (Code const code : {2277, 2154, 3005}) {
        Definition system = *definitionOf(code);
        std::swap(system.parameters[Parameter::standardParallel1], system.parameters[Parameter::standardParallel2]);
        EXPECT_EQ(recognise(system), code);
        EXPECT_EQ(reconcile(system).noticed, "");
        system.parameters[Parameter::standardParallel1] += 1e-3;
        EXPECT_EQ(recognise(system), 0);
    }
    Definition line = *definitionOf(2154); // a parallel is no latitude of another kind
    std::swap(line.parameters[Parameter::standardParallel1], line.parameters[Parameter::latitudeOfOrigin]);
    EXPECT_EQ(recognise(line), 0);
}

TEST(Recognition, WhatIsNoEntryStandsOnTheRegistersDatum) {
    for (Code const code : {32617, 2277, 27700, 27572, 3035}) {
        Definition const registered = *definitionOf(code);
        Definition system = withoutCodes(code);
        system.name = "the county's own";
        system.parameters[Parameter::falseEasting] += 1000;
        for (bool const byBase : {false, true}) {
            if (byBase)
                system.datum.name = "not said";
            auto const [taken, noticed] = reconcile(system);
            EXPECT_EQ(noticed, "");
            EXPECT_EQ(taken.code, 0);
            EXPECT_EQ(taken.datum.code, registered.datum.code);
            EXPECT_EQ(taken.datum.name, registered.datum.name);
            EXPECT_EQ(taken.baseCode, registered.baseCode);
            EXPECT_EQ(taken.baseName, registered.baseName);
        }
    }
}

TEST(Recognition, ADatumCountedFromAnotherMeridian) {
    Definition system = withoutCodes(4326);
    system.name = "unknown";
    system.datum.meridian = {"Paris", 2.33722917, 8903};
    auto const [taken, noticed] = reconcile(system);
    EXPECT_EQ(noticed, "");
    EXPECT_EQ(taken.code, 0);
    EXPECT_EQ(taken.datum.code, 6326);
    EXPECT_EQ(taken.datum.meridian.name, "Paris");
}

TEST(Recognition, NamesOfDatumsAndUnitsAreContradictedByNumbers) {
    auto const with = [](Code code, void (*change)(Definition&)) {
        Definition system = *definitionOf(code);
        system.datum.code = 0;
        change(system);
        return reconcile(system);
    };
    auto const named = with(4326, [](Definition& d) { d.datum.name = "North_American_Datum_1927"; });
    EXPECT_EQ(named.definition.code, 4326);
    EXPECT_EQ(named.noticed, "the datum North American Datum 1927 is named, but the definition has the semi-major axis "
                             "6378137 m instead of 6378206.4 m; its numbers are taken");

    auto const beside = with(4258, [](Definition& d) { d.datum.name = "D_North_American_1983"; });
    EXPECT_EQ(beside.definition.code, 4258);
    EXPECT_NE(beside.noticed.find("North American Datum 1983 is named beside"), std::string::npos) << beside.noticed;

    auto const coded = with(32617, [](Definition& d) {
        d.code = 0, d.name = "the county's own", d.baseName = "unknown", d.baseCode = 0;
        d.datum.code = 6326, d.datum.ellipsoid.semiMajor = 6378206.4;
    });
    EXPECT_EQ(coded.definition.datum.code, 0);
    EXPECT_NE(coded.noticed.find("the datum World Geodetic System 1984 ensemble is named"), std::string::npos)
        << coded.noticed;

    auto const feet = with(32617, [](Definition& d) { d.unit = {"Foot_US", 1, 0}; });
    EXPECT_EQ(feet.definition.unit.name, "metre");
    EXPECT_NE(feet.noticed.find("the unit US survey foot is named, but the definition has one of 1 instead of 0.3048"),
              std::string::npos)
        << feet.noticed;
}

TEST(Recognition, NumbersGoBeforeNames) {
    struct {
        Code code;
        void (*change)(Definition&);
        char const* told;
    } const cases[] = {
        {32617, [](Definition& d) { d.parameters[Parameter::longitudeOfOrigin] = -80; },
         "the longitude of origin -80 degrees instead of -81 degrees"},
        {32617, [](Definition& d) { d.datum.ellipsoid.semiMajor = 6378140; },
         "the semi-major axis 6378140 m instead of 6378137 m"},
        {32617, [](Definition& d) { d.unit.factor = 0.3048; }, "the unit 0.3048 m instead of 1 m"},
        {2053, [](Definition& d) { d.y = Sense::positive; }, "axes that grow the other way"},
        {27572, [](Definition& d) { d.datum.meridian.longitude = 0; },
         "the prime meridian 0 degrees instead of 2.33722917 degrees"},
        {3857, [](Definition& d) { d.method = Method::sinusoidal; },
         "the method Sinusoidal instead of Popular Visualisation Pseudo Mercator"},
    };
    for (auto const& c : cases) {
        Definition system = *definitionOf(c.code);
        c.change(system);
        EXPECT_EQ(recognise(system), 0);
        auto const reconciled = reconcile(system);
        EXPECT_EQ(reconciled.definition.code, 0);
        EXPECT_NE(reconciled.noticed.find(c.told), std::string::npos) << reconciled.noticed;
    }
}

TEST(Recognition, ADatumOfAnotherNameOnTheSameFigure) {
    // NAD83 and ETRS89 share an ellipsoid.
    Definition system = withoutCodes(26917);
    system.datum.name = "European Terrestrial Reference System 1989";
    system.baseName = "ETRS89";
    EXPECT_EQ(recognise(system), 0);
    EXPECT_NE(reconcile(system).noticed.find("instead of North American Datum 1983"), std::string::npos);
    // No name at all says nothing against what the system itself is called, but is no datum of the register either.
    system.datum.name = "unknown";
    system.baseName = "unknown";
    EXPECT_EQ(recognise(system), 26917);
    system.name = "unknown";
    EXPECT_EQ(recognise(system), 0);
}

TEST(Recognition, SeveralDatumsOfOneName) {
    // The datum's name alone leads to the one in force, whose figure is another; the system's code tells.
    for (Code const code : {4234, 4640, 2989, 23433}) {
        Definition system = withoutCodes(code);
        system.code = code;
        EXPECT_EQ(recognise(system), code);
        EXPECT_EQ(reconcile(system).noticed, "");
    }
}

TEST(Recognition, WhatIsRecognisedIsTheRegistersButForItsShift) {
    Definition system = withoutCodes(31467);
    system.datum.toWgs84 = ToWgs84{598.1, 73.7, 418.2, 0.202, 0.045, -2.455, 6.7};
    auto const reconciled = reconcile(system);
    EXPECT_EQ(reconciled.noticed, "");
    EXPECT_EQ(reconciled.definition.code, 31467);
    EXPECT_TRUE(reconciled.definition.area);
    EXPECT_EQ(reconciled.definition.datum.toWgs84, system.datum.toWgs84);
}
