// The set of a processor level's datum methods, and the ends of every conversion: longitudes into the range of the
// formulas and back. A method without a source is an undefined symbol to the linker.
#include "datum/kernels/method.h"
#include "levels/level.h"

#include <utility>

namespace ZrProj {
namespace datum::ZRPROJ_LEVEL {
namespace {

struct Cut {
    template <class R> static Pair<R> apply(Pair<R> degrees, R& turn) {
        auto const p = normalised(degrees);
        turn = select(p.x < -180.0, R(-360.0), select(p.x > 180.0, R(360.0), R(0.0)));
        return {p.x - turn, p.y};
    }
};
struct Restore {
    template <class R> static Pair<R> apply(Pair<R> degrees, R const& turn) {
        return normalised(Pair<R>{degrees.x + turn, degrees.y});
    }
};
struct Normalise {
    template <class R> static Pair<R> apply(Pair<R> degrees, R const&) { return normalised(degrees); }
};

template <class End> void runEnd(void const*, levels::Block& __restrict block) noexcept {
    int const count = block.count;
    for (int i = 0; i < count; i += lanes) {
        Register turn = 0.0;
        if constexpr (std::is_same_v<End, Restore>)
            turn = load(block.kept + i);
        auto const out = End::apply(Pair<Register>{load(block.x + i), load(block.y + i)}, turn);
        store(block.x + i, out.x);
        store(block.y + i, out.y);
        if constexpr (std::is_same_v<End, Cut>)
            store(block.kept + i, turn);
    }
}

template <class End> void runEndAlone(void const*, levels::LonePoint& point) noexcept {
    auto const out = End::apply(Pair<double>{point.x, point.y}, point.kept);
    point.x = out.x;
    point.y = out.y;
}

template <class End> constexpr levels::StageCode codeOfEnd{runEnd<End>, runEndAlone<End>};

template <std::size_t row> constexpr MethodSet::MakeStep stepOfRow() {
    if constexpr (datumMethodTable[row].isComputed())
        return makeStep<datumMethodTable[row].method>;
    else
        return nullptr;
}

template <std::size_t... row> constexpr MethodSet setOf(std::index_sequence<row...>) {
    return {
        levels::ZRPROJ_LEVEL::convert, codeOfEnd<Cut>, codeOfEnd<Restore>, codeOfEnd<Normalise>, {stepOfRow<row>()...}};
}

} // namespace
} // namespace datum::ZRPROJ_LEVEL

template <> datum::MethodSet const& levels::operationsOf<datum::MethodSet, levels::ZRPROJ_LEVEL::Home>() noexcept {
    static constexpr auto set = datum::ZRPROJ_LEVEL::setOf(std::make_index_sequence<datumMethodTable.size()>());
    return set;
}

} // namespace ZrProj
