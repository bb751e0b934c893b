#include "formulas/geodesic.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {

GeodesicSeries::GeodesicSeries(double flattening) : f(flattening), e2(f * (2 - f)), ep2(e2 / (1 - e2)) {
    double const n = f / (2 - f), n2 = n * n;
    double const ofA3[] = {1,         -(1 - n) / 2, -(2 + n - 3 * n2) / 8, -(1 + 3 * n + n2) / 16, -(3 + 2 * n) / 64,
                           -3.0 / 128};
    double const ofC3[][6] = {{0, (1 - n) / 4, (1 - n2) / 8, (3 + 3 * n - n2) / 64, (5 + 2 * n) / 128, 3.0 / 128},
                              {0, 0, (2 - 3 * n + n2) / 32, (3 - 2 * n - 3 * n2) / 64, (3 + n) / 128, 5.0 / 256},
                              {0, 0, 0, (5 - 9 * n + 5 * n2) / 192, (9 - 10 * n) / 384, 7.0 / 512},
                              {0, 0, 0, 0, (7 - 14 * n) / 512, 7.0 / 512},
                              {0, 0, 0, 0, 0, 21.0 / 2560}};
    for (int power = 0; power < 6; ++power) {
        a3[power] = ofA3[power];
        for (int l = 0; l < 5; ++l)
            c3[l][power] = ofC3[l][power];
    }
}

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
