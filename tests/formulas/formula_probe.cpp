#include "probe.h"

#include "formulas/auxiliary_latitude.h"
#include "levels/elementary.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {
namespace {

template <class F> void run(double const* x, double const* y, double* result, int count) {
    for (int i = 0; i < count; i += lanes)
        store(result + i, F{}(load(x + i), load(y + i)));
}

template <AuxiliaryLatitude (*make)(double)>
bool runBothWays(double flattening, double const* angle, double* xi, double* phi, int count) {
    auto const latitude = make(flattening);
    for (int i = 0; i < count; i += lanes) {
        Register const x = load(angle + i);
        store(xi + i, latitude.auxiliary(x, sinCos(x)));
        store(phi + i, latitude.geodetic(x, sinCos(x)));
    }
    return latitude.converged;
}

} // namespace
} // namespace ZrProj::formulas::ZRPROJ_LEVEL

namespace ZrProj {

template <> formulas::Probe const& levels::operationsOf<formulas::Probe, levels::ZRPROJ_LEVEL::Home>() noexcept {
    using namespace formulas::ZRPROJ_LEVEL;
    static constexpr formulas::Probe probe{{run<decltype([](Register x, Register) { return sin(x); })>,
                                            run<decltype([](Register x, Register) { return cos(x); })>,
                                            run<decltype([](Register x, Register y) { return atan2(y, x); })>,
                                            run<decltype([](Register x, Register) { return asin(x); })>,
                                            run<decltype([](Register x, Register) { return acos(x); })>,
                                            run<decltype([](Register x, Register) { return exp(x); })>,
                                            run<decltype([](Register x, Register) { return expm1(x); })>,
                                            run<decltype([](Register x, Register) { return log(x); })>,
                                            run<decltype([](Register x, Register) { return log1p(x); })>,
                                            run<decltype([](Register x, Register) { return cbrt(x); })>},
                                           {runBothWays<conformalLatitude>, runBothWays<authalicLatitude>,
                                            runBothWays<rectifyingLatitude>, rectifyingRadius}};
    return probe;
}

} // namespace ZrProj
