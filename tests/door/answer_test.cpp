#include "door/answer.h"
#include "door/handles.h"
#include "support/failing_memory.h"
#include "support/side_files.h"

#include <cmath>
#include <functional>
#include <stdexcept>
#include <vector>

using namespace ZrProj;
using namespace ZrProj::test;

namespace {

zrproj_parameters lambert() {
    return parametersOf(recordOf("type=lambert-conformal-conic ellipsoid=wgs-84 lat0=40 lon0=-96 lat1=20 lat2=60"));
}

/// Whichever allocation of the call fails: it says so and gives nothing back. `call` returns its status.
void expectNoMemory(std::function<zrproj_status()> const& call) {
    zrproj_status status{};
    int const allocations = withFailingMemory([&] { status = call(); },
                                              [&](bool failed) {
                                                  EXPECT_EQ(status, failed ? ZRPROJ_NO_MEMORY : ZRPROJ_OK);
                                                  EXPECT_STREQ(zrproj_message(), failed ? "out of memory" : "");
                                              });
    EXPECT_GT(allocations, 0);
}

/// The same for a function that makes a handle.
template <class Handle> void expectNoHandle(std::function<zrproj_status(typename Handle::pointer*)> const& make) {
    expectNoMemory([&] {
        auto handle = reinterpret_cast<typename Handle::pointer>(8); // is set whatever happens
        zrproj_status const status = make(&handle);
        EXPECT_EQ(handle == nullptr, status != ZRPROJ_OK);
        Handle const owner(handle);
        return status;
    });
}

} // namespace

TEST(DoorAnswer, NamesEveryStatusAndReason) {
    EXPECT_STREQ(zrproj_status_name(ZRPROJ_OK), "ok");
    EXPECT_STREQ(zrproj_status_name(ZRPROJ_NO_MEMORY), "no memory");
    EXPECT_STREQ(zrproj_status_name(static_cast<zrproj_status>(9)), "");
    EXPECT_STREQ(zrproj_reason_name(ZRPROJ_OUT_OF_AREA), "out of area");
    EXPECT_STREQ(zrproj_reason_name(ZRPROJ_NOT_FINITE), "not finite");
    EXPECT_STREQ(zrproj_reason_name(ZRPROJ_OFF_THE_GRID), "off the grid");
    for (int const none : {3, 15, 21, 255})
        EXPECT_STREQ(zrproj_reason_name(static_cast<zrproj_reason>(none)), "");
}

TEST(DoorAnswer, BlamesMemoryForNothingElse) {
    auto const statusOf = [](auto const& exception) {
        return Door::answer([&]() -> Door::Answer { throw exception; });
    };
    EXPECT_EQ(statusOf(std::length_error("vector")), ZRPROJ_NO_MEMORY);
    EXPECT_STREQ(zrproj_message(), "out of memory");
    EXPECT_EQ(statusOf(std::runtime_error("no cause")), ZRPROJ_UNSUPPORTED);
    EXPECT_STREQ(zrproj_message(), "a fault of the library: no cause");
    EXPECT_EQ(statusOf(1), ZRPROJ_UNSUPPORTED);
}

TEST(DoorAnswer, TellsOneLineOfWholeCharacters) {
    std::string name = "x\n";
    for (int i = 0; i < 2000; ++i)
        name += "\xC3\xA4";
    int found = 0;
    ASSERT_EQ(zrproj_ellipsoid_find(name.c_str(), &found), ZRPROJ_UNKNOWN);
    std::string const message = zrproj_message();
    EXPECT_EQ(message.find('\n'), std::string::npos);
    EXPECT_GT(message.size(), 1000U);
    EXPECT_EQ(message.back(), '\xA4');
    ASSERT_EQ(zrproj_ellipsoid_find("wgs 84", &found), ZRPROJ_OK);
    EXPECT_STREQ(zrproj_message(), "");
}

TEST(DoorAnswer, SaysThatMemoryRanOut) {
    zrproj_parameters const parameters = lambert();
    expectNoHandle<System>([&](zrproj_system** s) { return zrproj_system_create_from_parameters(&parameters, s); });
    System const map = systemOf(parameters), geographic = geographicOf(map);
    expectNoHandle<System>([&](zrproj_system** s) { return zrproj_system_geographic(map.get(), s); });
    expectNoHandle<Transform>(
        [&](zrproj_transform** t) { return zrproj_transform_create(geographic.get(), map.get(), nullptr, t); });
    std::vector<double> pairs;
    for (int i = 0; i < 20; ++i)
        pairs.insert(pairs.end(), {100 * std::sin(2.0 * i), 50 * std::cos(3.0 * i)});
    for (int const method : {0, 1, 4, 6})
        expectNoHandle<Fit>(
            [&](zrproj_fit** f) { return zrproj_fit_create(method, pairs.data(), pairs.data(), 20, f); });
    Fit const fit = made<Fit>([&](zrproj_fit** f) { return zrproj_fit_create(1, pairs.data(), pairs.data(), 20, f); });
    expectNoHandle<FitAnalysis>([&](zrproj_analysis** a) { return zrproj_analysis_create(fit.get(), a); });
    expectNoHandle<Pieces>([&](zrproj_pieces** p) { return zrproj_clip_ring(map.get(), pairs.data(), 20, p); });
}

TEST(DoorAnswer, SaysThatMemoryRanOutOverFiles) {
    TemporaryDirectory const directory;
    std::string const image = directory.file("scan.tif"), world = directory.file("scan.tfw");
    writeFile(world, "2\n0\n0\n-2\n500001\n4649999\n");
    auto const readWorld = [&](zrproj_description** d) {
        return zrproj_description_read(world.c_str(), ZRPROJ_WORLD_FILE, d);
    };
    expectNoHandle<Description>(readWorld);
    Description const description = made<Description>(readWorld);
    expectNoMemory([&] { return zrproj_description_write(description.get(), world.c_str(), ZRPROJ_WORLD_FILE); });
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(directory.path()), {}), 1);
    expectNoHandle<Fit>([&](zrproj_fit** f) { return zrproj_description_fit(description.get(), f); });
    expectNoHandle<Tags>([&](zrproj_tags** t) { return zrproj_tags_create(description.get(), t); });
    expectNoHandle<SideFiles>([&](zrproj_side_files** f) { return zrproj_side_files_create(image.c_str(), f); });
    expectNoHandle<Description>(
        [&](zrproj_description** d) { return zrproj_description_of_image(image.c_str(), nullptr, 0, d); });
}
