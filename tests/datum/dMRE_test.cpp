#include "datum/mre_table.h"
#include "support/datum.h"
#include "support/levels.h"

#include <cmath>
#include <fstream>
#include <sstream>
#include <string>

using namespace ZrProj;
using test::DatumHandle;
using test::toOrFromWgs84;

namespace {

/// The sum over the terms by powers, degrees.
long double change(datum::RegressionCentre const& centre, datum::Change of, DATUMPOINT const& p) {
    auto const K = static_cast<long double>(centre.K);
    auto const U = K * static_cast<long double>(p.y - centre.lat0), V = K * static_cast<long double>(p.x - centre.lon0);
    long double sum = 0;
    for (auto const& term : datum::regressionTerms)
        if (term.type == centre.type && term.change == of)
            sum += static_cast<long double>(term.coefficient) * std::pow(U, term.u) * std::pow(V, term.v);
    return sum / 3600;
}

} // namespace

TEST(Regression, GivesThePublishedExamples) {
    std::ifstream in(ZRPROJ_TEST_DATA "/datums/datum_regression.csv");
    int examples = 0;
    for (std::string line; std::getline(in, line);) {
        if (line[0] < '0' || line[0] > '9')
            continue;
        for (char& c : line)
            c = c == ',' ? ' ' : c;
        double type, latD, latM, latS, lonD, lonM, lonS, north, east;
        std::istringstream(line) >> type >> latD >> latM >> latS >> lonD >> lonM >> lonS >> north >> east;
        double const lat = std::copysign(std::abs(latD) + latM / 60 + latS / 3600, latD);
        double const lon = lonD + lonM / 60 + lonS / 3600;
        test::forEachLevel([&](levels::Level) {
            auto const p = DatumHandle(toOrFromWgs84(static_cast<DatumType>(type), true))(lon, lat);
            EXPECT_NEAR((p.y - lat) * 3600, north, 0.0006) << line;
            EXPECT_NEAR((p.x - lon) * 3600, east, 0.0006) << line;
        });
        ++examples;
    }
    EXPECT_EQ(examples, 8);
}

TEST(Regression, NestsWhatThePowersSay) {
    for (auto const& centre : datum::regressionCentres)
        test::forEachLevel([&](levels::Level) {
            DatumHandle const handle(toOrFromWgs84(centre.type, true));
            double const reach = 1 / centre.K; // the area: U and V up to 1 or so
            for (double north = -1; north <= 1; north += 0.25)
                for (double east = -1; east <= 1; east += 0.25) {
                    DATUMPOINT const p{centre.lon0 + east * reach, centre.lat0 + north * reach};
                    auto const q = handle(p.x, p.y);
                    EXPECT_NEAR(q.x, p.x + static_cast<double>(change(centre, datum::Change::lon, p)), 1e-12);
                    EXPECT_NEAR(q.y, p.y + static_cast<double>(change(centre, datum::Change::lat, p)), 1e-12);
                }
        });
}
