#include "cli/files/side_files.h"

#include "tests/cli/support.h"

#include <gtest/gtest.h>

namespace ZrProj::Command {
namespace {

/// An image whose rows go down: nothing that a similarity can say.
MapInfo scan(SystemPointer const& system = nullptr) {
    zrproj_georeference georeference{};
    georeference.size = sizeof georeference;
    georeference.method = TransformMethodPrecalculatedAffineCoefficients;
    double const coefficients[] = {2, 0, 500000, 0, -2, 4650000};
    std::copy(std::begin(coefficients), std::end(coefficients), georeference.coefficients);
    MapInfo const place(nullptr, &georeference);
    return system ? MapInfo(system, "scan.prj").with(place) : MapInfo().with(place);
}

TEST(SideFiles, TellWhatTheyLose) {
    TemporaryDirectory const directory;
    MapFile const world{FileKind::World, directory.file("a.tfw")}, rsf{FileKind::Rsf, directory.file("a.rsf")};
    EXPECT_TRUE(writeSideFile(world, scan(), Misfit::Refused).empty());
    auto const lost = writeSideFile(world, scan(systemOfDefinition("EPSG:32631")), Misfit::Refused);
    EXPECT_EQ(lost, (std::vector<std::string>{"the projection is left out: the format has none",
                                              "the datum is left out: the format has none"}));
    std::string const refusal = messageOf<std::runtime_error>([&] { writeSideFile(rsf, scan(), Misfit::Refused); });
    EXPECT_NE(refusal.find("--accept-misfit"), std::string::npos) << refusal;
    EXPECT_FALSE(std::filesystem::exists(rsf.name));
    auto const accepted = writeSideFile(rsf, scan(), Misfit::Accepted);
    ASSERT_EQ(accepted.size(), 1U);
    EXPECT_NE(accepted[0].find("(Helmert), which misses them by 141.421 (70.71 pixels) on the average"),
              std::string::npos)
        << accepted[0];
}

TEST(SideFiles, OfSystemsStandBesideImages) {
    TemporaryDirectory const directory;
    std::string const prj = directory.file("scan.PRJ"), image = directory.file("scan.png");
    EXPECT_TRUE(definitionsBeside(image).empty());
    EXPECT_EQ(writeDefinition(prj, scan(systemOfDefinition("EPSG:28992"))).size(), 1U); // the place is left out
    auto const files = definitionsBeside(image);
    ASSERT_EQ(files.size(), 1U);
    EXPECT_EQ(files[0].name, prj);
    EXPECT_EQ(systemOf(files[0].read())->text(ZRPROJ_CODE), "EPSG:28992");
    std::filesystem::remove(prj);
    std::filesystem::create_directory(prj);
    EXPECT_TRUE(definitionsBeside(image).empty());
    EXPECT_THROW(writeDefinition(directory.file("none.prj"), scan()), std::runtime_error);
    EXPECT_TRUE(isPrjName("a.Prj") && !isPrjName("a.prj.zrr") && !isPrjName("prj"));
}

} // namespace
} // namespace ZrProj::Command
