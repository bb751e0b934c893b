// Runs a computation over points, a register full of them at a time: everything that lies between the caller's numbers
// and the arithmetic. A point is computed by the same instructions wherever in an array it stands.
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

#include <cstring>
#include <utility>

namespace ZrProj::levels::ZRPROJ_LEVEL {

template <class R> auto isFinite(Pair<R> p) {
    return (abs(p.x) <= DBL_MAX) & (abs(p.y) <= DBL_MAX);
}
/// Whether a point comes in fit for computing.
template <class R> auto isGood(Pair<R> p) {
    return (abs(p.x) < DBL_MAX) & (abs(p.y) < DBL_MAX);
}

/// Of each 128 bits of two registers, the first numbers and the second ones: x and y of pairs, in an order of the
/// points that the same exchange undoes.
[[gnu::always_inline]] inline Pair<Register> exchange(Register a, Register b) {
#if defined(ZRPROJ_LEVEL_scalar)
    return {a, b};
#else
    using Native = xsimd::batch<double, Architecture>::register_type;
    Native const left = a.v, right = b.v;
    auto const take = [&]<int second, int... i>(std::integer_sequence<int, i...>) {
        return Register(Native(__builtin_shufflevector(left, right, (i / 2 * 2 + second + i % 2 * lanes)...)));
    };
    using All = std::make_integer_sequence<int, lanes>;
    return {take.template operator()<0>(All{}), take.template operator()<1>(All{})};
#endif
}

/// The caller's points as pairs. `laneOf` tells in which lane of a register a point is.
struct Pairs {
    double* numbers;

    static Pairs of(Points const& points) { return {reinterpret_cast<double*>(points.x)}; }
    static int laneOf(int point) { return 2 * point < lanes ? 2 * point : 2 * point - lanes + 1; }
    Pairs from(std::size_t first) const { return {numbers + 2 * first}; }
    Pair<double> get(int i) const { return {numbers[2 * i], numbers[2 * i + 1]}; }
    void put(int i, Pair<double> p) const {
        numbers[2 * i] = p.x;
        numbers[2 * i + 1] = p.y;
    }
    Pair<Register> load(int i) const {
        return exchange(levels::ZRPROJ_LEVEL::load(numbers + 2 * i),
                        levels::ZRPROJ_LEVEL::load(numbers + 2 * i + lanes));
    }
    void store(int i, Pair<Register> p) const {
        auto const pairs = exchange(p.x, p.y);
        levels::ZRPROJ_LEVEL::store(numbers + 2 * i, pairs.x);
        levels::ZRPROJ_LEVEL::store(numbers + 2 * i + lanes, pairs.y);
    }
};

/// Any points; two arrays without gaps go by whole registers.
struct Strided {
    std::byte *x, *y;
    std::ptrdiff_t stride;

    static Strided of(Points const& points) { return {points.x, points.y, points.stride}; }
    static int laneOf(int point) { return point; }
    Strided from(std::size_t first) const {
        auto const offset = stride * static_cast<std::ptrdiff_t>(first);
        return {x + offset, y + offset, stride};
    }
    Pair<double> get(int i) const {
        Pair<double> p;
        std::memcpy(&p.x, x + i * stride, sizeof p.x);
        std::memcpy(&p.y, y + i * stride, sizeof p.y);
        return p;
    }
    void put(int i, Pair<double> p) const {
        std::memcpy(x + i * stride, &p.x, sizeof p.x);
        std::memcpy(y + i * stride, &p.y, sizeof p.y);
    }
    Pair<Register> load(int i) const { return {loadFrom(x + i * stride), loadFrom(y + i * stride)}; }
    void store(int i, Pair<Register> p) const {
        storeTo(x + i * stride, p.x);
        storeTo(y + i * stride, p.y);
    }

private:
    Register loadFrom(std::byte const* from) const {
        double values[lanes];
        if (stride == sizeof(double))
            std::memcpy(values, from, sizeof values);
        else
            for (int k = 0; k < lanes; ++k)
                std::memcpy(values + k, from + k * stride, sizeof(double));
        return levels::ZRPROJ_LEVEL::load(values);
    }
    void storeTo(std::byte* to, Register value) const {
        double values[lanes];
        levels::ZRPROJ_LEVEL::store(values, value);
        if (stride == sizeof(double))
            std::memcpy(to, values, sizeof values);
        else
            for (int k = 0; k < lanes; ++k)
                std::memcpy(to + k * stride, values + k, sizeof(double));
    }
};

/// Less than a register full of points, filled up with zeros; of a single one, without reading back what was stored
/// piece by piece.
template <class View> Pair<Register> loadRest(View const& view, int i, int count) {
    auto const first = view.get(i);
    if (count == 1)
        return {Register(first.x), Register(first.y)};
    double x[lanes] = {}, y[lanes] = {};
    for (int k = 0; k < count; ++k) {
        auto const p = view.get(i + k);
        x[View::laneOf(k)] = p.x;
        y[View::laneOf(k)] = p.y;
    }
    return {load(x), load(y)};
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

/// Work that goes through a block, stage after stage.
class Staged {
public:
    Staged(Stage const* stages, std::size_t count) : stages_(stages), count_(count) {}

    template <class View> void compute(View const& view, int count) {
        int i = 0;
        for (; i + lanes <= count; i += lanes)
            pack(i, view.load(i));
        if (i < count)
            pack(i, loadRest(view, i, count - i));
        block_.count = count;
        for (std::size_t k = 0; k < count_; ++k)
            if (stages_[k].code)
                stages_[k].code.run(stages_[k].constants, block_);
    }

    /// The results, which are all there, a register full at a time.
    struct Results {
        double const *x, *y;

        Pair<Register> at(int i) const { return {load(x + i), load(y + i)}; }
    };
    template <class View> Results results(View const&) const { return {block_.x, block_.y}; }

    /// The same as numbers.
    struct Numbers {
        double const *x, *y;
    };
    template <class View> Numbers numbers(View const&, int i, int) const { return {block_.x + i, block_.y + i}; }

    /// What becomes of a point alone.
    unsigned char convert(LonePoint& point) const {
        for (std::size_t k = 0; k < count_; ++k) {
            if (stages_[k].code)
                stages_[k].code.alone(stages_[k].constants, point);
            if (!isFinite(Pair<double>{point.x, point.y}))
                return static_cast<unsigned char>(lostInStage + k);
        }
        return cameOut;
    }

private:
    void pack(int i, Pair<Register> p) {
        auto const good = isGood(p);
        if (!all(good))
            p = {select(good, p.x, Register(notANumber)), select(good, p.y, Register(notANumber))};
        store(block_.x + i, p.x);
        store(block_.y + i, p.y);
    }

    Stage const* stages_;
    std::size_t count_;
    Block block_;
};

/// Work that is so little that a block would cost more: from the caller's points through a register and back. `map` is
/// a struct with a `convert` as stages have it, out of which nothing finite comes where something infinite goes in.
template <class Map> struct Direct {
    Map const& map;

    template <class View> void compute(View const&, int) const {}

    template <class View> struct Results {
        Map map; // a copy, which nothing that is stored meanwhile can change
        View view;

        Pair<Register> at(int i) const { return converted(map, view.load(i)); }
    };
    template <class View> Results<View> results(View const& view) const { return {map, view}; }

    struct Numbers {
        double x[lanes], y[lanes];
    };
    template <class View> Numbers numbers(View const& view, int i, int count) const {
        auto const out = converted(map, count < lanes ? loadRest(view, i, count) : view.load(i));
        Numbers numbers;
        store(numbers.x, out.x);
        store(numbers.y, out.y);
        return numbers;
    }

    unsigned char convert(LonePoint& point) const {
        auto const out = convertWatched(map, {point.x, point.y}, point.raised);
        point.x = out.x;
        point.y = out.y;
        return isFinite(out) ? cameOut : lostInStage;
    }

private:
    static Pair<Register> converted(Map const& map, Pair<Register> in) {
        auto const out = map.convert(in);
        auto const unmarked = (in.x != DBL_MAX) & (in.y != DBL_MAX);
        return {select(unmarked, out.x, Register(notANumber)), out.y};
    }
};

/// A point that did not come out, once more and alone: it is found to be lost, to fail the call, or to be good.
template <class Work>
[[gnu::noinline]] Pair<double> convertAlone(Work const& work, Pair<double> point, Marking const& marking,
                                            unsigned char* fate, Outcome& outcome) {
    bool const marked = isMarked(point), finite = isFinite(point);
    LonePoint alone{point.x, point.y};
    auto const became = finite && !marked ? work.convert(alone) : cameInLost;
    outcome.failed |= alone.raised;
    if (fate)
        *fate = became;
    if (became == cameOut)
        return {alone.x, alone.y};
    if (marked && finite && marking.keepsMarked)
        return point;
    outcome.lost = true;
    return {marking.marker, marking.marker};
}

/// Gives back the points of a register one by one; `fates` are the block's, or null.
template <class Work, class View>
[[gnu::noinline]] void settle(Work const& work, View const& view, int i, int count, Marking const& marking,
                              unsigned char* fates, Outcome& outcome) {
    auto const numbers = work.numbers(view, i, count);
    for (int k = 0; k < count; ++k) {
        Pair<double> const out{numbers.x[View::laneOf(k)], numbers.y[View::laneOf(k)]};
        auto* const fate = fates ? fates + i + k : nullptr;
        view.put(i + k, isFinite(out) ? out : convertAlone(work, view.get(i + k), marking, fate, outcome));
    }
}

/// Gives back whole registers as long as all of their points came out; returns where that ends. Nothing is called here,
/// so that all constants stay in registers.
template <class Results, class View> int storeGood(Results const& results, View const& view, int i, int count) {
    for (; i + lanes <= count; i += lanes) {
        auto const out = results.at(i);
        if (!all(isFinite(out)))
            break;
        view.store(i, out);
    }
    return i;
}

template <class Work, class View>
void convertBlock(Work& work, View const& view, int count, Marking const& marking, unsigned char* fates,
                  Outcome& outcome) {
    work.compute(view, count);
    int i = 0;
    while (i + lanes <= count) {
        i = storeGood(work.results(view), view, i, count);
        if (i + lanes > count)
            break;
        settle(work, view, i, lanes, marking, fates, outcome);
        i += lanes;
    }
    if (i < count)
        settle(work, view, i, count - i, marking, fates, outcome);
}

/// What was just written in pieces is read in pieces here, or a single point would wait for it: no copies of `points`
/// or `marking`.
template <class Work, class View, class... Parts>
[[gnu::noinline]] Outcome convertView(Points const& points, Marking const& marking, Parts const&... parts) {
    Work work{parts...};
    auto const view = View::of(points);
    Outcome outcome;
    for (std::size_t first = 0; first < points.count; first += blockPoints) {
        auto const rest = points.count - first;
        convertBlock(work, view.from(first), rest < blockPoints ? static_cast<int>(rest) : blockPoints, marking,
                     marking.fates ? marking.fates + first : nullptr, outcome);
    }
    return outcome;
}

/// Runs work, made of `parts`, over a caller's points.
template <class Work, class... Parts>
Outcome convertPoints(Points const& points, Marking const& marking, Parts const&... parts) {
    bool const arePairs = points.stride == 2 * sizeof(double) && points.y == points.x + sizeof(double);
    return arePairs ? convertView<Work, Pairs>(points, marking, parts...)
                    : convertView<Work, Strided>(points, marking, parts...);
}

/// Runs stages.
Convert convert;

} // namespace ZrProj::levels::ZRPROJ_LEVEL
