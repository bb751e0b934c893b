// Every formula beside reference values: published worked examples, and 40-digit evaluations of the definitions.
#include "support/cases.h"
#include "support/registry.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace ZrProj;

namespace {

class Reference : public testing::TestWithParam<std::string> {};

std::string nameOf(testing::TestParamInfo<std::string> const& file) {
    std::string name = file.param.substr(0, file.param.find('.'));
    std::ranges::replace(name, '-', '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Files, Reference, testing::ValuesIn(test::caseFiles()), nameOf);

} // namespace

TEST_P(Reference, ValuesAreMet) {
    test::expectProjectionCases(GetParam());
}

TEST(References, EveryTypeHasSome) {
    std::vector<ProjType> covered{ProjTypeUniversalTransverseMercator, ProjTypeGaussKruger}; // as Transverse Mercator
    for (auto const& file : test::caseFiles())
        for (auto const& each : test::projectionCases(file))
            covered.push_back(each.record.Type);
    for (auto const type : test::projectingTypes())
        EXPECT_NE(std::ranges::count(covered, type), 0) << type;
}
