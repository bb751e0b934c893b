#include "cli/files/map_info.h"

#include "tests/cli/support.h"

#include <gtest/gtest.h>

namespace ZrProj::Command {
namespace {

constexpr char const* world = "2\n0\n0\n-2\n1001\n2999\n"; // the centre of the first pixel; its corner is 1000, 3000

void write(std::string const& name, std::string const& text) {
    std::ofstream(name, std::ios::binary) << text;
}

/// The names, without their directory, of what tells of an image.
std::vector<std::string> sourceNames(std::string const& image) {
    std::vector<std::string> names;
    for (MapFile const& file : filesOf(image))
        names.push_back(std::filesystem::path(file.name).filename().string());
    return names;
}

TEST(MapInfo, TheFormatIsKnownByTheName) {
    auto const title = [](char const* name) {
        auto const file = sideFile(name);
        return std::string(file ? file->title() : "none");
    };
    for (char const* name : {"a.tif.zrr", "A.ZRR"})
        EXPECT_EQ(title(name), "reference file") << name;
    EXPECT_EQ(title("map.Rsf"), "RSF file");
    for (char const* name : {"a.wld", "a.tfw", "a.TIFW", "a.jgw", "a.pgw"})
        EXPECT_EQ(title(name), "world file") << name;
    for (char const* name : {"a.tif", "a.raw", "a.new", "wld", "a."})
        EXPECT_EQ(title(name), "none") << name;
}

TEST(MapInfo, AnImagesSideFilesInTheOrderInWhichTheyCount) {
    TemporaryDirectory const directory;
    std::string const image = directory.file("map.tif");
    EXPECT_TRUE(sourceNames(image).empty());
    for (char const* name :
         {"map.WLD", "map.tfw", "map.tifw", "map.tfW", "map.rsf", "map.tif.ZRR", "map.tif.zrr", "mop.tfw"})
        write(directory.file(name), world);
    EXPECT_EQ(sourceNames(image), (std::vector<std::string>{"map.tif.zrr", "map.tif.ZRR", "map.rsf", "map.tfW",
                                                            "map.tifw", "map.WLD", "map.tfw"}));
}

TEST(MapInfo, WorldFilesSayWhereTheCentreOfTheFirstPixelLies) {
    TemporaryDirectory const directory;
    write(directory.file("any name.wld"), world);
    MapInfo const info = readMap(directory.file("any name.wld"));
    EXPECT_EQ(info.fileOf(ZRPROJ_GEOREFERENCE), directory.file("any name.wld"));
    EXPECT_FALSE(info.tells(ZRPROJ_PROJECTION) || info.tells(ZRPROJ_DATUM));
    EXPECT_EQ(info.georeference().coefficients[2], 1000);
    EXPECT_EQ(info.georeference().coefficients[5], 3000);
    EXPECT_TRUE(sideFile(directory.file("b.tfw"))->write(info, Misfit::Refused).empty());
    MapInfo const back = readMap(directory.file("b.tfw"));
    EXPECT_EQ(back.georeference().coefficients[2], 1000);
    EXPECT_EQ(back.georeference().coefficients[4], -2);
}

TEST(MapInfo, WhatAFormatCannotCarryIsTold) {
    TemporaryDirectory const directory;
    write(directory.file("a.wld"), world);
    MapInfo info = readMap(directory.file("a.wld"));
    auto const notes = sideFile(directory.file("a.zrr"))->write(info, Misfit::Refused);
    ASSERT_EQ(notes.size(), 1U);
    EXPECT_TRUE(notes[0].starts_with("the six coefficients are written as four control points"));
    EXPECT_EQ(readMap(directory.file("a.zrr")).georeference().count, 4U);
    EXPECT_THROW(sideFile(directory.file("b.wld"))->write(MapInfo(), Misfit::Refused), std::runtime_error);
    EXPECT_FALSE(std::filesystem::exists(directory.file("b.wld")));
}

TEST(MapInfo, DamagedFiles) {
    TemporaryDirectory const directory;
    for (char const* name : {"a.zrr", "a.rsf", "a.wld"}) {
        write(directory.file(name), "2\n0\n");
        EXPECT_THROW(readMap(directory.file(name)), std::runtime_error) << name;
    }
    EXPECT_THROW(readMap(directory.file("none.wld")), std::runtime_error);
    EXPECT_THROW(readMap(directory.file("none.tif")), std::runtime_error);
}

} // namespace
} // namespace ZrProj::Command
