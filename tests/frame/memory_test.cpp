// Whichever allocation of a call fails: the call says so, gives nothing back, and, which the address sanitizer sees,
// keeps nothing.
#include "support/cases.h"
#include "support/error_host.h"
#include "support/failing_memory.h"
#include "support/georef_cases.h"
#include "support/side_files.h"

#include <zrproj/zrproj.h>

#include <gtest/gtest.h>

#include <functional>

using namespace ZrProj;
using namespace ZrProj::test;

namespace {

/// `call` tells whether it succeeded, and reports `error` where it does not, 0 for nothing. Returns how many
/// allocations it made.
int expectFailures(std::function<bool()> const& call, unsigned error) {
    ErrorHost host;
    bool done = false;
    return withFailingMemory([&] { done = call(); },
                             [&](bool failed) {
                                 EXPECT_EQ(done, !failed);
                                 EXPECT_EQ(host.calls.empty() ? 0 : host.calls.back().number, failed ? error : 0);
                                 host.calls.clear();
                             });
}

} // namespace

TEST(Memory, PreclippingRunsOut) {
    constexpr PROJPOINT coast[] = {{-120, -74}, {-60, -65}, {0, 10}, {60, -67}, {120, -66}, {170, -72}};
    for (auto const* words : {"type=sinusoidal ellipsoid=wgs-84",
                              "type=orthographic ellipsoid=standard-sphere-of-6370997-meters lat0=40 lon0=10",
                              "type=lambert-azimuthal ellipsoid=wgs-84 lat1=90",
                              "type=hotine ellipsoid=wgs-84 lat0=45 lat1=30 lon1=-100 lat2=60"})
        for (auto const cut : {&CProjector::LLPreclipPolyline, &CProjector::LLPreclipPolygon}) {
            PROJDATA record = recordOf(words);
            CProjector projector(&record);
            auto const call = [&] {
                CPROJCHAIN* chains = nullptr;
                bool const done = (projector.*cut)(coast, 6, &chains);
                bool const given = chains != nullptr;
                ProjFreeChains(chains);
                return done || given;
            };
            EXPECT_GT(expectFailures(call, 20201), 3) << words;
        }
}

TEST(Memory, FitsRunOut) {
    auto controls = scattered(12, 1000, [](GEOREFPOINT p) {
        return GEOREFPOINT{p.x + 1e-4 * p.x * p.y, 2 * p.y - 1e-7 * p.x * p.x * p.x};
    });
    GEOREF const record = controls.record(TransformMethod3rdOrderPolynomial);
    auto const create = [&] {
        void* const system = RefCreateSystem(&record);
        RefDeleteSystem(system);
        return system != nullptr;
    };
    EXPECT_GT(expectFailures(create, 20200), 2);
    CImageRegistration registration;
    auto const calibrate = [&] {
        return registration.Calibrate(WarpingMethodThinPlateSpline, record.pSource, record.pTarget, record.nControls);
    };
    EXPECT_GT(expectFailures(calibrate, 0), 2);
}

TEST(Memory, ReferenceFilesRunOut) {
    TemporaryDirectory const directory;
    auto const name = directory.file("map.tif.zrr");
    PROJDATA projection = recordOf("type=albers ellipsoid=wgs-84 lat1=20 lat2=60");
    auto controls = scattered(5, 1000, [](GEOREFPOINT p) { return p; });
    GEOREF const georef = controls.record(TransformMethodAffinePolynomial);
    auto const write = [&] {
        return ZrProjRefFileWriteEx(name.c_str(), &projection, DatumTypeWorldGeodeticSystem1984, nullptr, &georef);
    };
    ASSERT_TRUE(write());
    auto const bytes = fileBytes(name);
    EXPECT_GT(expectFailures(write, 20201), 2);
    EXPECT_EQ(fileBytes(name), bytes);
    auto const read = [&] {
        Georef found;
        std::uint32_t flags = 0;
        return ZrProjRefFileReadEx(name.c_str(), &projection, nullptr, nullptr, &found, &flags);
    };
    EXPECT_GT(expectFailures(read, 20201), 1);
}
