#include "cli/files/grids.h"

#include "cli/text/usage_error.h"
#include "tests/cli/support.h"

#include <gtest/gtest.h>

#include <memory>

namespace ZrProj::Command {
namespace {

constexpr zrproj_grid conus{sizeof conus, 30, 12, -80, 38, 0, 0, 0.5, 0.5, "Test"};
constexpr zrproj_grid prvi{sizeof prvi, 30, 12, -68, 17, 0, 0, 0.25, 0.25, "Test"};
constexpr zrproj_grid elsewhere{sizeof elsewhere, 30, 12, 100, -38, 0, 0, 0.5, 0.5, "Test"};

/// Writes NAME.LAS and NAME.LOS with one value each.
void write(std::string const& name, zrproj_grid const& grid, float las, float los) {
    std::vector<float> const ofLas(30 * 12, las), ofLos(30 * 12, los);
    ASSERT_EQ(zrproj_grid_write(name.c_str(), &grid, ofLas.data(), ofLos.data(), ofLas.size()), ZRPROJ_OK)
        << zrproj_message();
}

// What three shifts say near the middle of each: 1.75 seconds west and 0.125 north, 1.34 east and 7.08 south.
TEST(Grids, AreToldApartByWhatTheyHold) {
    TemporaryDirectory const directory;
    std::string const name = directory.file("pair");
    Arrangement const eastLatitudes{true, false, ""}, westLongitudes{false, true, ""};
    struct {
        zrproj_grid grid;
        float las, los;
        Arrangement const& found;
    } const cases[] = {{conus, 1.75F, 0.125F, own},
                       {conus, 0.125F, -1.75F, usual},
                       {conus, 0.125F, 1.75F, eastLatitudes},
                       {conus, -1.75F, 0.125F, westLongitudes},
                       {prvi, 1.34F, -7.08F, own},
                       {prvi, -7.08F, -1.34F, usual}};
    for (auto const& c : cases) {
        write(name, c.grid, c.las, c.los);
        for (Arrangement const& supposed : {own, usual}) {
            Arrangement const found = arrangementOf(GridFile(name + ".LAS"), GridFile(name + ".LOS"), supposed);
            EXPECT_EQ(found.latitudesInLas, c.found.latitudesInLas) << c.las << ' ' << c.los;
            EXPECT_EQ(found.westPositive, c.found.westPositive) << c.las << ' ' << c.los;
        }
    }
    write(name, elsewhere, 0.125F, -1.75F); // nothing to compare with
    EXPECT_TRUE(arrangementOf(GridFile(name + ".LAS"), GridFile(name + ".LOS"), own) == own);
}

TEST(Grids, ImportExchangesFilesAndTurnsTheSign) {
    TemporaryDirectory const directory;
    std::string const source = directory.file("usual"), made = directory.file("made");
    write(source, conus, 0.125F, -1.75F);
    importGrids({source, made});
    EXPECT_EQ(GridFile(made + ".LAS").row(12), std::vector<float>(30, 1.75F));
    EXPECT_EQ(GridFile(made + ".LOS").row(1), std::vector<float>(30, 0.125F));
    EXPECT_STREQ(GridFile(made + ".LAS").header.identification, "Test");

    auto const refusal = [](GridImport const& job) { return messageOf<UsageError>([&] { importGrids(job); }); };
    EXPECT_EQ(refusal({source, made}), made + ".LAS is there already; --replace replaces it");
    EXPECT_NE(refusal({made, directory.file("again")}).find("copy them as they are"), std::string::npos);
    EXPECT_NE(refusal({source, source, true}).find("is itself what would be written"), std::string::npos);
    write(source, conus, -1.75F, 0.125F);
    EXPECT_NE(refusal({source, made, true}).find("which cannot be imported"), std::string::npos);
    EXPECT_EQ(GridFile(made + ".LAS").row(1), std::vector<float>(30, 1.75F)); // as it was
}

} // namespace
} // namespace ZrProj::Command
