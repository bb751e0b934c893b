#include "auxiliary_latitude_probe.h"

#include "formulas/auxiliary_latitude.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {
namespace {

template <AuxiliaryLatitude (*make)(double)>
bool run(double flattening, double const* angle, double* xi, double* phi, int count) {
    auto const latitude = make(flattening);
    for (int i = 0; i < count; i += lanes) {
        Register const x = load(angle + i);
        store(xi + i, latitude.auxiliary(x, sinCos(x)));
        store(phi + i, latitude.geodetic(x, sinCos(x)));
    }
    return latitude.converged;
}

} // namespace

constinit AuxiliaryLatitudeProbe const auxiliaryLatitudeProbe{run<conformalLatitude>, run<authalicLatitude>,
                                                              run<rectifyingLatitude>, rectifyingRadius};

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
