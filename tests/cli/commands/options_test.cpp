#include "cli/commands/options.h"

#include "cli/text/usage_error.h"
#include "tests/cli/support.h"

#include <gtest/gtest.h>

namespace ZrProj::Command {
namespace {

/// The options of a subcommand, read from a command line.
template <class Options> class Given {
public:
    template <class... Arguments>
    explicit Given(std::vector<std::string> words, Arguments... arguments) : options(arguments...) {
        CommandLine const command = m_line.command();
        options.addTo(command);
        if constexpr (requires { options.addParametersTo(command); })
            options.addParametersTo(command);
        words.insert(words.begin(), "tool");
        std::vector<char*> pointers;
        for (std::string& word : words)
            pointers.push_back(word.data());
        m_line.read(static_cast<int>(pointers.size()), pointers.data());
    }

private:
    ProgramLine m_line{"tool", "", "1"};

public:
    Options options;
};

ProjectionChoice choice(std::vector<std::string> const& words, MapDatum const& datum = {}) {
    return Given<ProjectionOptions>(words).options.choice(datum);
}

TEST(ProjectionOptions, AUtmZoneIsARecord) {
    PROJDATA const north = choice({"--utm", "17N"}).record, south = choice({"--utm", "zone 56 S"}).record;
    EXPECT_EQ(north.Type, ProjTypeUniversalTransverseMercator);
    EXPECT_EQ(static_cast<double>(north.Lon0), -81);
    EXPECT_EQ(static_cast<int>(north.Ellipsoid), EllipsoidTypeWgs84);
    EXPECT_EQ(static_cast<double>(south.Lon0), 153);
    EXPECT_TRUE(south.bSouth && !north.bSouth);
    EXPECT_TRUE(choice({"--utm", "auto"}).zonePerPoint);
}

TEST(ProjectionOptions, ParametersByBothOfTheirNames) {
    PROJDATA const record = choice({"-p", "transverse mercator", "--lon0", "9d30'", "--central-latitude=10N", "--k0",
                                    "0.5", "--false-easting", "-3", "--radius", "6370000", "--flattening", "1/300"})
                                .record;
    EXPECT_EQ(record.Type, ProjTypeTransverseMercator);
    EXPECT_EQ(static_cast<double>(record.Lon0), 9.5);
    EXPECT_EQ(static_cast<double>(record.Lat0), 10);
    EXPECT_EQ(static_cast<double>(record.K0), 0.5);
    EXPECT_EQ(static_cast<double>(record.xOrg), -3);
    EXPECT_EQ(static_cast<int>(record.Ellipsoid), EllipsoidTypeUserDefined);
    EXPECT_EQ(static_cast<double>(record.Flattening), 1.0 / 300);
}

TEST(ProjectionOptions, TheStandardFigureIsTakenWhereNoneIsGiven) {
    EXPECT_EQ(static_cast<int>(choice({"-p", "1"}, {.figure = {EllipsoidTypeClarke1866}}).record.Ellipsoid),
              EllipsoidTypeClarke1866);
    EXPECT_EQ(
        static_cast<int>(
            choice({"-p", "1", "--ellipsoid", "airy 1830"}, {.figure = {EllipsoidTypeClarke1866}}).record.Ellipsoid),
        EllipsoidTypeAiry1830);
}

TEST(ProjectionOptions, StatePlaneZonesByNameCodeAndYear) {
    for (std::vector<std::string> const& words :
         {std::vector<std::string>{"--state-plane", "wyoming east", "--year", "1927"},
          {"--state-plane", "4901", "--year=1927"},
          {"--state-plane", "32055"},
          {"-p", "9", "--state-zone", "wyoming east"}}) {
        PROJDATA const record = choice(words).record;
        EXPECT_EQ(record.Type, ProjTypeStatePlane1927) << words[1];
        EXPECT_EQ(static_cast<int>(record.Zone), StateZoneTypeWyomingEast) << words[1];
    }
}

TEST(ProjectionOptions, WhatMakesNoProjection) {
    struct Case {
        std::vector<std::string> words;
        char const* message;
    };
    for (auto const& [words, message] :
         {Case{{}, "no projection; give --crs, --utm, --state-plane, --projection or --like"},
          {{"--utm", "17N", "-p", "4"}, "more than one projection; give one of"},
          {{"-p", "merkator"}, "unknown projection \"merkator\"; the nearest: "},
          {{"-p", "lambert"}, "\"lambert\" fits more than one projection: \"Lambert Conformal Conic\""},
          {{"-p", "17", "--lat1", "40"}, "--lat1 is not used by Transverse Mercator, which uses: --ellipsoid,"},
          {{"-p", "5"}, "--lat1: Standard parallels (Lat1, Lat2) cannot be similar"},
          {{"-p", "17", "--lon0", "45N"}, "--lon0: \"45N\" has a latitude's letter"},
          {{"-p", "17", "--k0", "0"}, "--k0: \"0\" is not greater than zero"},
          {{"--utm", "17N", "--south"}, "--south has no place beside --utm, which tells it"},
          {{"--utm", "61N"}, "--utm: \"61N\" is no zone; write 1 to 60 and N or S"},
          {{"--utm", "17N", "--year", "1927"}, "--year goes with --state-plane"},
          {{"-p", "9"}, "the projection needs --state-zone"},
          {{"--state-plane", "california vii"},
           "the zone \"California VII\" has no definition of 1983; give --year 1927"},
          {{"--state-plane", "26741", "--year", "1983"}, "the POSC code 26741 is that of a definition of 1927"},
          {{"-p", "1", "--flattening", "0"}, "--flattening goes with --radius"},
          {{"-p", "1", "--radius", "1", "--ellipsoid", "3"}, "--radius has no place beside --ellipsoid"},
          {{"--like", "none", "--utm", "17N"}, "--utm has no place beside --like, which tells it"}}) {
        std::string const said = messageOf<UsageError>([&] { choice(words); });
        EXPECT_EQ(said.substr(0, std::string_view(message).size()), message);
    }
}

TEST(ProjectionOptions, ThatContradictEachOtherAreBothNamed) {
    for (std::vector<std::string> const& words : {std::vector<std::string>{"--projection", "mercator"},
                                                  {"--utm", "17N"},
                                                  {"--state-plane", "wyoming east"},
                                                  {"--year", "1927"},
                                                  {"--like", "map.tif"},
                                                  {"--ellipsoid", "airy 1830"},
                                                  {"--radius", "6370000"},
                                                  {"--lon0", "3"},
                                                  {"--south"}}) {
        std::vector<std::string> all{"--crs", "EPSG:28992"};
        all.insert(all.end(), words.begin(), words.end());
        std::string const option = words[0] == "--projection" ? "-p" : words[0];
        std::string const said = messageOf<UsageError>([&] { choice(all); });
        EXPECT_TRUE(said.find(words[0]) == 0 || said.find(option) == 0) << said;
        EXPECT_NE(said.find(" has no place beside --crs, which tells it"), said.npos) << said;
    }
    MapDatum const nad27 = mapDatumOf(findDatum("nad27", {})), nad83 = mapDatumOf(findDatum("nad83", {}));
    EXPECT_EQ(messageOf<UsageError>([&] {
                  choice({"--crs", "28992"}, nad27);
              }),
              "--datum has no place beside --crs, which tells it");
    EXPECT_EQ(messageOf<UsageError>([&] {
                  choice({"--state-plane", "wyoming east", "--year", "1983"}, nad27);
              }),
              "--year: the zone is defined on the North American Datum 1983, and --datum says 1927");
    EXPECT_EQ(messageOf<UsageError>([&] {
                  choice({"-p", "1", "--radius", "6378000"}, nad27);
              }),
              "--radius: an ellipsoid of your own is another ellipsoid than that of --datum, Clarke 1866");
    EXPECT_EQ(messageOf<UsageError>([&] {
                  choice({"-p", "state plane 1927", "--state-zone", "wyoming east"}, nad83);
              }),
              "--state-zone: the zone is defined on the North American Datum 1927, and --datum says 1983");
    EXPECT_EQ(choice({"--state-plane", "wyoming east"}, nad27).record.Type, ProjTypeStatePlane1927);
}

std::optional<DatumShift> shift(Operation operation, std::vector<std::string> const& words) {
    return Given<DatumOptions>(words, operation).options.shift();
}

TEST(DatumOptions, TheDatumOfTheMapStandsAtTheMapsEnd) {
    auto const forward = shift(Operation::Forward, {"--from-datum", "wgs84", "--datum", "nad27"});
    auto const inverse = shift(Operation::Inverse, {"--to-datum", "wgs84", "--datum", "nad27"});
    ASSERT_TRUE(forward && inverse);
    EXPECT_EQ(forward->to.type, DatumTypeNorthAmericanDatum1927);
    EXPECT_EQ(inverse->from.type, DatumTypeNorthAmericanDatum1927);
    EXPECT_EQ(inverse->to.type, DatumTypeWorldGeodeticSystem1984);
    EXPECT_FALSE(shift(Operation::Forward, {"--datum", "nad27"}));
    Given<DatumOptions> const map({"--datum", "nad27"}, Operation::Forward);
    EXPECT_EQ(map.options.ofMap().figure.ellipsoid, EllipsoidTypeClarke1866);
}

TEST(DatumOptions, WhatIsMissing) {
    EXPECT_EQ(messageOf<UsageError>([] {
                  shift(Operation::Datum, {"--from", "nad27"});
              }),
              "the datums are missing; give --from and --to");
    EXPECT_EQ(messageOf<UsageError>([] {
                  shift(Operation::Inverse, {"--to-datum", "nad27"});
              }),
              "--to-datum goes with --datum, the datum of the map");
}

} // namespace
} // namespace ZrProj::Command
