// Makes a stage of a computation that is written for any number type.
//
// A stage is a struct, made from its constants, of three templates over the number type,
//
//     template <class R> Pair<R> enter(Pair<R> p) const;      // what `convert` takes, from what the stage before left
//     template <class R> Pair<R> convert(Pair<R> p) const;    // NaN for what cannot be computed
//     template <class R> Pair<R> leave(Pair<R> p) const;
//
// and only an arithmetic exception of `convert` counts as one.
#pragma once

#include "host/fpenv.h"
#include "levels/elementary.h"
#include "levels/stage.h"

namespace ZrProj::levels::ZRPROJ_LEVEL {

template <class R> auto isFinite(Pair<R> p) {
    return (abs(p.x) <= DBL_MAX) & (abs(p.y) <= DBL_MAX);
}

/// Out of line, so that no arithmetic of it moves across the reading of the flags.
template <class S> [[gnu::noinline]] void evaluate(S const& stage, Pair<double> const& in, Pair<double>& out) {
    out = stage.convert(in);
}

/// `convert` with the arithmetic flags watched: NaN where one was raised.
template <class S> Pair<double> convertWatched(S const& stage, Pair<double> in, bool& raised) {
    Pair<double> out{notANumber, notANumber};
    clearArithmeticFlags();
    evaluate(stage, in, out);
    raised = arithmeticFlagRaised();
    return raised ? Pair<double>{notANumber, notANumber} : out;
}

template <class S> void runStage(void const* constants, Block& __restrict block) noexcept {
    S const stage(constants);
    int const count = block.count;
    for (int i = 0; i < count; i += lanes) {
        auto const in = stage.enter(Pair<Register>{load(block.x + i), load(block.y + i)});
        auto const out = stage.leave(stage.convert(in));
        store(block.x + i, select(isFinite(in), out.x, Register(notANumber)));
        store(block.y + i, out.y);
    }
}

template <class S> void runStageAlone(void const* constants, LonePoint& point) noexcept {
    S const stage(constants);
    auto const in = stage.enter(Pair<double>{point.x, point.y});
    Pair<double> out{notANumber, notANumber};
    if (isFinite(in))
        out = stage.leave(convertWatched(stage, in, point.raised));
    point.x = out.x;
    point.y = out.y;
}

template <class S> StageCode codeOf() {
    return {runStage<S>, runStageAlone<S>};
}

/// Runs stages over points.
Convert convert;

} // namespace ZrProj::levels::ZRPROJ_LEVEL
