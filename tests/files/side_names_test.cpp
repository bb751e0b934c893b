#include "files/side_names.h"

#include "support/side_files.h"

#include <gtest/gtest.h>

using namespace ZrProj;
using ZrProj::test::writeFile;

namespace {
using Names = std::vector<std::string>;
} // namespace

TEST(SideNames, WorldFiles) {
    EXPECT_EQ(worldNamesToRead("a.b/scan.tif"), (Names{"a.b/scan.tfW", "a.b/scan.tifw", "a.b/scan.WLD"}));
    EXPECT_EQ(worldNamesToRead("scan.ab"), (Names{"scanW", "scan.abw", "scan.WLD"}));
    EXPECT_EQ(worldNamesToRead("a.b/scan"), (Names{"a.b/scanW", "a.b/scanw", "a.b/scan.WLD"}));
    EXPECT_EQ(worldNameToWrite("scan.tif"), "scan.tfW");
    EXPECT_EQ(worldNameToWrite("scan.old.jpeg"), "scan.old.jeW");
    EXPECT_EQ(worldNameToWrite("scan.ab"), "scan.abW");
    EXPECT_EQ(worldNameToWrite("scan"), "scanW");
}

TEST(SideNames, ReferenceFile) {
    for (char const* own : {"map.zrr", "map.ZrR", "mapzrr", "xxzrr", "a/b.zrr"})
        EXPECT_EQ(referenceName(own), own);
    EXPECT_EQ(referenceName("map.tif"), "map.tif.zrr");
    EXPECT_EQ(referenceName("map"), "map.zrr");
    EXPECT_EQ(referenceName(".zrr"), ".zrr.zrr"); // four characters
    EXPECT_EQ(referenceName("zrr"), "zrr.zrr");
    EXPECT_EQ(referenceName("map.zrr "), "map.zrr .zrr");
}

TEST(SideNames, VariantsDifferInTheCaseOfTheExtension) {
    EXPECT_EQ(caseVariants("Map.WL"), (Names{"Map.wl", "Map.Wl", "Map.wL"}));
    EXPECT_EQ(caseVariants("Map.1w"), Names{"Map.1W"});
    EXPECT_EQ(caseVariants("MapW"), Names{});
    EXPECT_EQ(caseVariants("a.b/MapW"), Names{});
    EXPECT_EQ(caseVariants("Map.\xC4"), Names{});
    EXPECT_EQ(caseVariants("m.abcdefgh").size(), 255U);
    EXPECT_EQ(caseVariants("m." + std::string(60, 'a')), Names{});
}

TEST(SideNames, ExactNamesAreOpenedBeforeVariants) {
    TemporaryDirectory const directory;
    Names const names{directory.file("m.AB"), directory.file("m.CD")};
    auto const opened = [&] {
        Stream const stream = openSideFile(names);
        return stream ? std::getc(stream.get()) : '-';
    };
    EXPECT_EQ(opened(), '-');
    std::filesystem::create_directory(directory.file("m.AB"));
    writeFile(directory.file("M.ab"), "M"); // another image's
    EXPECT_EQ(opened(), '-');
    writeFile(directory.file("m.Cd"), "4");
    EXPECT_EQ(opened(), '4');
    writeFile(directory.file("m.cd"), "3");
    EXPECT_EQ(opened(), '3');
    writeFile(directory.file("m.aB"), "2");
    EXPECT_EQ(opened(), '2');
    writeFile(directory.file("m.CD"), "1");
    EXPECT_EQ(opened(), '1');
}
