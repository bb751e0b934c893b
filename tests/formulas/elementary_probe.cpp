#include "elementary_probe.h"

#include "formulas/elementary.h"

namespace ZrProj::formulas::ZRPROJ_LEVEL {
namespace {

/// One register at a time; `count` is a multiple of every register's size.
template <class F> void run(double const* x, double const* y, double* result, int count) {
    for (int i = 0; i < count; i += lanes)
        store(result + i, F{}(load(x + i), load(y + i)));
}

} // namespace

constinit ElementaryProbe const elementaryProbe{
    run<decltype([](Register x, Register) { return sin(x); })>,
    run<decltype([](Register x, Register) { return cos(x); })>,
    run<decltype([](Register x, Register y) { return atan2(y, x); })>,
    run<decltype([](Register x, Register) { return asin(x); })>,
    run<decltype([](Register x, Register) { return acos(x); })>,
    run<decltype([](Register x, Register) { return exp(x); })>,
    run<decltype([](Register x, Register) { return expm1(x); })>,
    run<decltype([](Register x, Register) { return log(x); })>,
    run<decltype([](Register x, Register) { return log1p(x); })>,
    run<decltype([](Register x, Register) { return cbrt(x); })>,
};

} // namespace ZrProj::formulas::ZRPROJ_LEVEL
