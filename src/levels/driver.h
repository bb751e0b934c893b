// Runs work over points, a register full of them at a time: everything that lies between the caller's numbers and the
// stages. A point is computed by the same instructions wherever in an array it stands.
#pragma once

#include "levels/stage_code.h"

#include <utility>

namespace ZrProj::levels::ZRPROJ_LEVEL {

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

/// The caller's points from one of them on. `laneOf` tells in which lane of a register a point is.
struct Pairs {
    double* numbers;

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

/// Fewer points than a register takes, filled up with zeros.
[[gnu::noinline]] inline Pair<Register> gather(Pairs points, int count) {
    double x[lanes] = {}, y[lanes] = {};
    for (int k = 0; k < count; ++k) {
        auto const p = points.get(k);
        x[Pairs::laneOf(k)] = p.x;
        y[Pairs::laneOf(k)] = p.y;
    }
    return {load(x), load(y)};
}

/// The same; of a single point, without reading back what was stored piece by piece.
inline Pair<Register> loadRest(Pairs points, int count) {
    if (count > 1)
        return gather(points, count);
    auto const point = points.get(0);
    return {Register(point.x), Register(point.y)};
}

/// Work that goes through a block, stage after stage.
class Staged {
public:
    Staged(Stage const* stages, std::size_t count) : stages_(stages), end_(stages + count) {}

    /// Computes whole registers, whose results are there afterwards; where all are good, a register at a time.
    void compute(Pairs points, int count) {
        for (int i = 0; i < count; i += lanes)
            pack(i, points.load(i));
        run(count);
    }
    struct Results {
        double const *x, *y;

        Pair<Register> at(int i) const { return {load(x + i), load(y + i)}; }
    };
    Results results(Pairs) const { return {block_.x, block_.y}; }

    /// The results of one register, number by number.
    struct Numbers {
        double const *x, *y;
    };
    Numbers numbers(Pairs, int i) const { return {block_.x + i, block_.y + i}; }

    /// The same of fewer points than a register takes.
    Numbers computeRest(Pairs points, int count) {
        pack(0, loadRest(points, count));
        run(count);
        return {block_.x, block_.y};
    }

    /// What becomes of a point alone.
    unsigned char convert(LonePoint& point) const {
        for (auto const* stage = stages_; stage != end_; ++stage) {
            if (stage->code)
                stage->code.alone(stage->constants, point);
            if (!isFinite(Pair<double>{point.x, point.y}))
                return static_cast<unsigned char>(lostInStage + (stage - stages_));
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

    void run(int count) {
        block_.count = count;
        for (auto const* stage = stages_; stage != end_; ++stage)
            if (stage->code)
                stage->code.run(stage->constants, block_);
    }

    Stage const *stages_, *end_;
    Block block_;
};

/// Work that is so little that a block would cost more: from the caller's points through a register and back. `map` is
/// a struct with a `convert` as stages have it, out of which nothing finite comes where something infinite goes in.
template <class Map> struct Direct {
    Map map;

    void compute(Pairs, int) const {}

    struct Results {
        Map map; // a copy, which nothing that is stored meanwhile can change
        Pairs points;

        Pair<Register> at(int i) const { return converted(map, points.load(i)); }
    };
    Results results(Pairs points) const { return {map, points}; }

    struct Numbers {
        double x[lanes], y[lanes];
    };
    Numbers numbers(Pairs points, int i) const { return numbersOf(converted(map, points.load(i))); }
    Numbers computeRest(Pairs points, int count) const { return numbersOf(converted(map, loadRest(points, count))); }

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
    static Numbers numbersOf(Pair<Register> results) {
        Numbers numbers;
        store(numbers.x, results.x);
        store(numbers.y, results.y);
        return numbers;
    }
};

/// The i-th of a caller's points, which did not come out, once more and alone: it is found to be lost, to fail the
/// call, or to be good.
template <class Work>
[[gnu::noinline]] Pair<double> convertAlone(Work const& work, Pair<double> point, std::size_t i, Marking const& marking,
                                            Outcome& outcome) {
    bool const marked = isMarked(point), finite = isFinite(point);
    LonePoint alone{point.x, point.y};
    auto const reason = finite && !marked ? work.convert(alone) : cameInLost;
    outcome.failed |= alone.raised;
    if (marking.reasons)
        marking.reasons[i] = reason;
    if (reason == cameOut)
        return {alone.x, alone.y};
    if (marked && finite && marking.keepsMarked)
        return point;
    outcome.lost = true;
    return {DBL_MAX, DBL_MAX};
}

/// Gives back up to a register full of points one by one, each by its numbers where it came out.
template <class Work, class Numbers>
void giveBack(Work const& work, Numbers const& numbers, Pairs points, std::size_t first, int count,
              Marking const& marking, Outcome& outcome) {
    auto const here = points.from(first);
    for (int k = 0; k < count; ++k) {
        Pair<double> const out{numbers.x[Pairs::laneOf(k)], numbers.y[Pairs::laneOf(k)]};
        here.put(k, isFinite(out)
                        ? out
                        : convertAlone(work, here.get(k), first + static_cast<std::size_t>(k), marking, outcome));
    }
}

/// Gives back whole registers as long as all of their points came out; returns where that ends. Nothing is called here,
/// so that all constants stay in registers.
template <class Results> int storeGood(Results const& results, Pairs points, int i, int count) {
    for (; i < count; i += lanes) {
        auto const out = results.at(i);
        if (!all(isFinite(out)))
            break;
        points.store(i, out);
    }
    return i;
}

/// Up to a block of whole registers from the first-th point on. Out of line, so that a single point does not pay for
/// what it needs.
template <class Work>
[[gnu::noinline]] void convertBlock(Work& work, Pairs points, std::size_t first, int count, Marking const& marking,
                                    Outcome& outcome) {
    static_assert(blockPoints % lanes == 0);
    auto const here = points.from(first);
    work.compute(here, count);
    for (int i = 0; (i = storeGood(work.results(here), here, i, count)) < count; i += lanes)
        giveBack(work, work.numbers(here, i), points, first + static_cast<std::size_t>(i), lanes, marking, outcome);
}

/// Runs work over a caller's points.
template <class Work> Outcome convertPoints(Work& work, Points points, Marking const& marking) {
    Pairs const pairs{points.numbers};
    std::size_t const whole = points.count - points.count % lanes;
    Outcome outcome;
    for (std::size_t i = 0; i < whole; i += blockPoints)
        convertBlock(work, pairs, i, whole - i < blockPoints ? static_cast<int>(whole - i) : blockPoints, marking,
                     outcome);
    if (int const rest = static_cast<int>(points.count - whole); rest > 0)
        giveBack(work, work.computeRest(pairs.from(whole), rest), pairs, whole, rest, marking, outcome);
    return outcome;
}

} // namespace ZrProj::levels::ZRPROJ_LEVEL
