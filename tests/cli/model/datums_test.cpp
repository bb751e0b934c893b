#include "cli/model/datums.h"

#include "cli/text/usage_error.h"
#include "tests/cli/support.h"

#include <gtest/gtest.h>

namespace ZrProj::Command {
namespace {

TEST(Datums, ByNameCodeAndNumber) {
    for (char const* text : {"nad27", "NAD27", "6267", "2", " 2 ", "north american datum 1927"})
        EXPECT_EQ(findDatum(text, {}).type, DatumTypeNorthAmericanDatum1927) << text;
}

TEST(Datums, ThoseOfTheCommandLineGoFirst) {
    Datum own;
    own.name = "Tokyo North";
    EXPECT_EQ(findDatum("tokyo north", std::span(&own, 1)).type, DatumTypeUserDefined);
}

TEST(Datums, WhatNamesNone) {
    struct Case {
        char const *text, *message;
    };
    for (auto const& [text, message] :
         {Case{"1927 - CONUS", "\"1927 - CONUS\" fits more than one datum: \"NAD 1927 - CONUS\", "},
          {"tokio", "unknown datum \"tokio\"; the nearest: "},
          {"9999", "no datum has the number or POSC code 9999;"}}) {
        std::string const said = messageOf<UsageError>([text = text] { findDatum(text, {}); });
        EXPECT_EQ(said.substr(0, std::string_view(message).size()), message);
    }
}

TEST(Datums, ADefinitionsFieldsInAnyOrder) {
    Datum const datum =
        readDatumDefinition("Site: dz=176, Method = molod, radius = 6378206.4, flattening=1/294.978698213898, DX=-8");
    EXPECT_EQ(datum.name, "Site");
    EXPECT_TRUE(datum.isOwn() && datum.isReversible());
    EXPECT_EQ(datum.method(), DatumMethodMolodensky);
    EXPECT_EQ(static_cast<double>(datum.record.dX), -8);
    EXPECT_EQ(static_cast<double>(datum.record.dY), 0);
    EXPECT_EQ(static_cast<double>(datum.record.dZ), 176);
    EXPECT_EQ(figureOf(datum)->radius, 6378206.4);
    EXPECT_EQ(figureOf(readDatumDefinition("d: method=none, ellipsoid=airy 1830"))->ellipsoid, EllipsoidTypeAiry1830);
}

TEST(Datums, WhatDefinesNone) {
    struct Case {
        char const *text, *message;
    };
    for (auto const& [text, message] :
         {Case{"method=none", "\"method=none\" is no datum;"},
          {"x: dx=1", "the datum \"x\" has no method;"},
          {"x: method=nadcon", "method: \"nadcon\" is none of "},
          {"x: method=none, dq=1", "a datum has no field \"dq\"; there are "},
          {"x: method=none, dx=1m", "dx: \"1m\" is not a number"},
          {"x: method=none, dx=1, DX=1", "the datum \"x\" has \"DX\" twice"},
          {"x: method=molodensky, dx=1", "the datum \"x\" cannot be used: Ellipsoid radius "},
          {"NAD27: method=none", "the name \"NAD27\" is one of the catalogue"}}) {
        std::string const said = messageOf<UsageError>([text = text] { readDatumDefinition(text); });
        EXPECT_EQ(said.substr(0, std::string_view(message).size()), message);
    }
}

} // namespace
} // namespace ZrProj::Command
