#include "systems/search.h"

#include "systems/register.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace ZrProj::systems;

namespace {

std::vector<Code> found(std::string_view words, std::optional<Place> place = {}) {
    std::vector<Code> codes;
    for (std::size_t const n : search(words, place))
        codes.push_back(entry(n).code);
    return codes;
}

bool has(std::vector<Code> const& codes, Code code) {
    return std::ranges::find(codes, code) != codes.end();
}

} // namespace

TEST(SystemSearch, TakesAllWordsInAnyOrderAndCase) {
    EXPECT_EQ(found("Rd  NEW\t"), std::vector<Code>{28992});
    EXPECT_EQ(found("new rd"), std::vector<Code>{28992});
    auto const zones = found("wgs 84 utm zone 32");
    EXPECT_TRUE(has(zones, 32632) && has(zones, 32732) && !has(zones, 32633));
    EXPECT_TRUE(std::ranges::is_sorted(zones));
    EXPECT_EQ(found("").size(), found(" ").size());
    EXPECT_GT(found("").size(), 5000U);
}

TEST(SystemSearch, TakesCodes) {
    EXPECT_EQ(found("epsg:28992"), std::vector<Code>{28992});
    EXPECT_EQ(found("EPSG:2036"), std::vector<Code>{2036}); // deprecated: by its whole code alone
    auto const byName = found("NAD83(CSRS98) New Brunswick");
    EXPECT_FALSE(has(byName, 2036));
    EXPECT_EQ(found("99999999").size(), 0U);
    auto const asWord = found("2000"); // a code, and a word of names
    EXPECT_TRUE(has(asWord, 2000));
    EXPECT_GT(asWord.size(), 1U);
}

TEST(SystemSearch, OfAPlaceHasTheSmallestAreaFirst) {
    auto const there = found("utm", Place{6.5, 53.2});
    EXPECT_TRUE(has(there, 32632) && !has(there, 32631) && !has(there, 32633));
    auto const all = found("wgs 84", Place{6.5, 53.2});
    auto const zone = std::ranges::find(all, 32632), world = std::ranges::find(all, 4326);
    ASSERT_TRUE(zone != all.end() && world != all.end());
    EXPECT_LT(zone - all.begin(), world - all.begin());
    EXPECT_TRUE(has(found("fiji", Place{179.5, -17}), 3460)); // an area over the antimeridian
    EXPECT_TRUE(has(found("fiji", Place{-179.5, -17}), 3460));
    EXPECT_FALSE(has(found("fiji", Place{0, -17}), 3460));
}
