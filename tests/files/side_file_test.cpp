#include "files/side_file.h"

#include "support/side_files.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace ZrProj;
using ZrProj::test::writeFile;

namespace {

using Texts = std::vector<std::string>;

constexpr SideFileKind kinds[] = {SideFileKind::reference, SideFileKind::rsf, SideFileKind::world};
static_assert(std::size(kinds) == sideFileKinds);

/// A map whose rows go down, so that no similarity says it.
MapRecord mapOfCoefficients() {
    MapRecord record = emptyMapRecord();
    record.georef.Method = TransformMethodPrecalculatedAffineCoefficients;
    record.georef.A = 2, record.georef.C = 500000, record.georef.E = -2, record.georef.F = 4650000;
    return record;
}

/// The same by three of its points, with a projection and a datum.
void setControls(OwnedMapRecord& record) {
    RefAllocControls(&record.georef, 3);
    record.georef.Method = TransformMethodAffinePolynomial;
    GEOREFPOINT const sources[] = {{0, 0}, {100, 0}, {0, 100}};
    for (int i = 0; i < 3; ++i) {
        record.georef.pSource[i] = sources[i];
        record.georef.pTarget[i] = {500000 + 2 * sources[i].x, 4650000 - 2 * sources[i].y};
    }
    record.projection.Type = ProjTypeUniversalTransverseMercator;
    record.datum = DatumTypeTokyo;
}

} // namespace

TEST(SideFile, KindsAreToldByExtensions) {
    for (char const* name : {"a.zrr", "scan.tif.ZRR", "b.c/x.Zrr"})
        EXPECT_EQ(sideFileKind(name), SideFileKind::reference) << name;
    for (char const* name : {"a.rsf", "a.RSF"})
        EXPECT_EQ(sideFileKind(name), SideFileKind::rsf) << name;
    for (char const* name : {"a.wld", "a.WLD", "a.tfw", "a.tfW", "a.tifw", "a.jgw", "a.jpegW", "a.pgw", "a.j2w"})
        EXPECT_EQ(sideFileKind(name), SideFileKind::world) << name;
    for (char const* name : {"a.raw", "a.new", "a.tif", "a.w", "w", "a", "", "zrr", "a.zrr/b", "a.wl", "a.csv"})
        EXPECT_FALSE(sideFileKind(name)) << name;
}

// The name that a file is written under says its kind, and is one of those that are read.
TEST(SideFile, NamesLeadThereAndBack) {
    TemporaryDirectory const directory;
    for (char const* name : {"scan.tif", "scan.jpeg", "a.b.png"})
        for (SideFileKind const kind : kinds) {
            std::string const image = directory.file(name), own = sideFileName(image, kind);
            EXPECT_EQ(sideFileKind(own), kind) << own;
            writeFile(own, "");
            auto const files = sideFilesOf(image);
            ASSERT_EQ(files.size(), 1U) << own;
            EXPECT_EQ(files[0].kind, kind);
            EXPECT_EQ(files[0].name, own);
            std::filesystem::remove(own);
        }
}

TEST(SideFile, AnImagesFilesComeInTheOrderInWhichTheyCount) {
    TemporaryDirectory const directory;
    std::string const image = directory.file("scan.tif");
    for (char const* name : {"scan.tif.zrr", "scan.tif.ZRR", "scan.RSF", "scan.rsf", "scan.WLD", "scan.wld", "scan.tfW",
                             "scan.tfw", "scan.tifw", "scan.zrr", "scan.prj", "other.tfw", "Scan.tfw"})
        writeFile(directory.file(name), "");
    std::filesystem::create_directory(directory.file("scan.TIFW")); // no plain file
    Texts names;
    for (SideFile const& file : sideFilesOf(image)) {
        EXPECT_EQ(sideFileKind(file.name), file.kind) << file.name;
        names.push_back(
            file.name.substr(file.name.size() - std::filesystem::path(file.name).filename().string().size()));
    }
    EXPECT_EQ(names, (Texts{"scan.tif.zrr", "scan.tif.ZRR", "scan.RSF", "scan.rsf", "scan.tfW", "scan.tifw", "scan.WLD",
                            "scan.tfw", "scan.wld"}));
    EXPECT_TRUE(sideFilesOf(directory.file("none.tif")).empty());
}

TEST(SideFile, EachKindTellsWhatItCannotCarry) {
    OwnedMapRecord whole;
    setControls(whole);
    MapRecord const coefficients = mapOfCoefficients(), nothing = emptyMapRecord();
    auto const isTold = [](Texts const& lost, char const* what) {
        return !lost.empty() && lost.back().find(what) != std::string::npos;
    };
    EXPECT_TRUE(lossOf(SideFileKind::reference, whole).empty());
    EXPECT_TRUE(isTold(lossOf(SideFileKind::reference, coefficients), "four control points of an affine fit"));
    for (SideFileKind const kind : {SideFileKind::rsf, SideFileKind::world}) {
        auto const lost = lossOf(kind, whole);
        ASSERT_EQ(lost.size(), 3U);
        EXPECT_EQ(lost[0], "the projection is left out: the format has none");
        EXPECT_EQ(lost[1], "the datum is left out: the format has none");
    }
    EXPECT_TRUE(isTold(lossOf(SideFileKind::rsf, whole), "read back as a similarity (Helmert)"));
    EXPECT_TRUE(isTold(lossOf(SideFileKind::rsf, coefficients), "four control points, read back as a similarity"));
    EXPECT_TRUE(isTold(lossOf(SideFileKind::world, whole), "fitted by an affine map"));
    EXPECT_TRUE(lossOf(SideFileKind::world, coefficients).empty());
    for (SideFileKind const kind : kinds)
        EXPECT_TRUE(lossOf(kind, nothing).empty());
}

// Every kind gives back the same map, counted from the corner of the first pixel.
TEST(SideFile, WhatIsWrittenIsReadBack) {
    TemporaryDirectory const directory;
    OwnedMapRecord byControls;
    setControls(byControls);
    MapRecord const coefficients = mapOfCoefficients();
    for (MapRecord const* const map : {&coefficients, static_cast<MapRecord const*>(&byControls)})
        for (SideFileKind const kind : kinds) {
            std::string const name = sideFileName(directory.file("scan.tif"), kind);
            auto const written = writeSideFile(name, kind, *map);
            EXPECT_EQ(written.failure, "");
            EXPECT_EQ(written.notes, lossOf(kind, *map));
            OwnedMapRecord read;
            EXPECT_EQ(readSideFile(name, kind, read).failure, "");
            if (kind == SideFileKind::world) {
                EXPECT_NEAR(read.georef.A, 2, 1e-9);
                EXPECT_NEAR(read.georef.C, 500000, 1e-6);
                EXPECT_NEAR(read.georef.F, 4650000, 1e-6);
                continue;
            }
            ASSERT_GE(test::value(read.georef.nControls), 3) << name;
            for (int i = 0; i < read.georef.nControls; ++i) {
                auto const source = read.georef.pSource[i], target = read.georef.pTarget[i];
                EXPECT_NEAR(target.x, 500000 + 2 * source.x, 1e-6) << name;
                EXPECT_NEAR(target.y, 4650000 - 2 * source.y, 1e-6) << name;
            }
        }
    OwnedMapRecord read;
    readSideFile(directory.file("scan.tif.zrr"), SideFileKind::reference, read);
    EXPECT_EQ(test::value(read.projection.Type), ProjTypeUniversalTransverseMercator);
    EXPECT_EQ(read.datum, DatumTypeTokyo);
}

TEST(SideFile, NothingIsWrittenOfNothing) {
    TemporaryDirectory const directory;
    std::string const name = directory.file("a.file");
    writeFile(name, "before");
    MapRecord record = emptyMapRecord();
    EXPECT_EQ(writeSideFile(name, SideFileKind::reference, record).failure,
              "there is nothing to write to \"" + name + '"');
    record.projection.Type = ProjTypeMercator;
    EXPECT_EQ(writeSideFile(name, SideFileKind::world, record).failure,
              "there is no georeference to write to \"" + name + '"');
    OwnedMapRecord onALine;
    setControls(onALine);
    onALine.georef.pSource[2] = {50, 0};
    auto const refused = writeSideFile(name, SideFileKind::world, onALine);
    EXPECT_EQ(refused.failure, "the control points make no affine fit to write to \"" + name + '"');
    EXPECT_FALSE(refused.isFit);
    EXPECT_EQ(std::filesystem::file_size(name), 6U);
}

TEST(SideFile, ReadersTellWhyTheyFail) {
    TemporaryDirectory const directory;
    std::string const name = directory.file("a.file");
    auto const failure = [&](SideFileKind kind) {
        OwnedMapRecord record;
        return readSideFile(name, kind, record).failure;
    };
    EXPECT_NE(failure(SideFileKind::world).find("No such file"), std::string::npos);
    writeFile(name, "1\n0\n0\n-1\n5.5");
    std::string const beginning = "cannot read \"" + name + "\": it ";
    EXPECT_EQ(failure(SideFileKind::world), beginning + "has fewer than six lines, each ended by a line feed");
    EXPECT_EQ(failure(SideFileKind::reference), beginning + "is no reference file, or damaged");
    EXPECT_EQ(failure(SideFileKind::rsf), beginning + "does not hold the control points that it announces, or none");
    std::filesystem::remove(name);
    std::filesystem::create_directory(name);
    EXPECT_EQ(failure(SideFileKind::world), beginning + "is no plain file");
}

TEST(SideFile, ControlPointsThatAreOnlyAnnouncedAreNoted) {
    TemporaryDirectory const directory;
    std::string const name = directory.file("a.zrr");
    writeFile(name, "Zorvane Cartographic Reference Information : Version 1.10\n"
                    "Georef Method : Helmert\nGeoref Control Point Count : 4\n");
    OwnedMapRecord record;
    auto const read = readSideFile(name, SideFileKind::reference, record);
    EXPECT_EQ(read.notes, Texts{"the control points that \"" + name + "\" announces are not there"});
    EXPECT_EQ(test::value(record.georef.Method), TransformMethodNone);
    EXPECT_EQ(test::value(record.georef.nControls), 0);
}
