// There and back through datums and projections: places stay where they are.
#include "door/handles.h"
#include "support/faults.h"

#include <cmath>
#include <cstdlib>
#include <numbers>
#include <string>
#include <vector>

using namespace ZrProj;
using namespace ZrProj::test;

namespace {

System systemOf(int code) {
    return made<System>([&](zrproj_system** s) { return zrproj_system_create(std::to_string(code).c_str(), s); });
}

/// The UTM zone, on WGS 84, of a place.
System utmAround(double longitude, double latitude) {
    int const zone = static_cast<int>(std::floor((std::remainder(longitude, 360) + 180) / 6)) % 60 + 1;
    return systemOf((latitude < 0 ? 32700 : 32600) + zone);
}

/// Projected systems: all where the environment's ZRPROJ_ALL_TRIPS is set, else one in a hundred.
std::vector<System> maps() {
    std::vector<System> found;
    size_t const step = std::getenv("ZRPROJ_ALL_TRIPS") ? 1 : 100;
    int code = 0;
    char const* kind = nullptr;
    for (size_t n = 0; zrproj_register_entry(n, &code, nullptr, &kind) == ZRPROJ_OK; n += step) {
        zrproj_system* system = nullptr;
        if (std::string(kind) == "projected" &&
            zrproj_system_create(std::to_string(code).c_str(), &system) == ZRPROJ_OK)
            found.emplace_back(system);
    }
    return found;
}

/// Pairs of coordinates, and the middle of where they are.
struct Sample {
    double longitude, latitude;
    std::vector<double> pairs;
};

/// On a map, inside its area and within a few degrees of its middle.
Sample sampleOf(System const& map) {
    double west = 0, south = 0, east = 0, north = 0;
    if (zrproj_system_area(map.get(), &west, &south, &east, &north) != ZRPROJ_OK)
        return {};
    double const width = east < west ? east + 360 - west : east - west;
    Sample sample{west + width / 2, (south + north) / 2, {}};
    for (double const part : {-0.4, -0.1, 0.2, 0.45}) {
        sample.pairs.push_back(sample.longitude + part * std::min(width, 6.0) / 2);
        sample.pairs.push_back(sample.latitude + part * std::min(north - south, 6.0) / 2);
    }
    System const geographic = geographicOf(map);
    Transform const toMap = made<Transform>(
        [&](zrproj_transform** t) { return zrproj_transform_create(geographic.get(), map.get(), nullptr, t); });
    zrproj_transform_points(toMap.get(), 0, &sample.pairs[0], &sample.pairs[1], 16, 4, nullptr);
    return sample;
}

/// The farthest that a thousand trips lead astray, in units of the system.
double driftOf(Transform const& transform, std::vector<double> const& given) {
    auto pairs = given;
    for (int trip = 0; trip < 1000; ++trip)
        for (int const backwards : {0, 1})
            zrproj_transform_points(transform.get(), backwards, &pairs[0], &pairs[1], 16, pairs.size() / 2, nullptr);
    double drift = 0;
    for (std::size_t i = 0; i < pairs.size(); ++i)
        drift = std::fmax(drift, std::fabs(pairs[i] - given[i]));
    return drift;
}

} // namespace

TEST(Door, AThousandTripsBetweenDatumsEndWithinAMicrometre) {
    Faults faults("after a thousand trips");
    int shifted = 0;
    double worst = 0;
    for (System const& map : maps()) {
        Sample const sample = sampleOf(map); // of none without an area
        System const utm = utmAround(sample.longitude, sample.latitude);
        zrproj_transform* made = nullptr;
        if (zrproj_transform_create(map.get(), utm.get(), nullptr, &made) != ZRPROJ_OK)
            continue;
        Transform const transform(made);
        char code[32] = "", text[4000] = "";
        double accuracy = 0, unit = 1;
        EXPECT_EQ(zrproj_transform_describe(made, text, sizeof text, nullptr, &accuracy), ZRPROJ_OK);
        EXPECT_EQ(zrproj_system_text(map.get(), ZRPROJ_CODE, code, sizeof code, nullptr), ZRPROJ_OK);
        EXPECT_EQ(zrproj_system_unit(map.get(), &unit), ZRPROJ_OK);
        if (accuracy == 0) // on one datum
            continue;
        double const drift = driftOf(transform, sample.pairs) * unit;
        worst = std::max(worst, drift);
        if (drift > 1e-6)
            faults.add(code, ": ", drift, " m");
        ++shifted;
    }
    RecordProperty("ways", shifted);
    RecordProperty("worst", std::to_string(worst * 1e6) + " um");
    EXPECT_GT(shifted, 20);
}
