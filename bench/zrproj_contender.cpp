#include "contender.h"

#include "levels/level.h"

#include <memory>
#include <numbers>

namespace ZrProj::bench {
namespace {

Contender contenderOf(Case const& definition) {
    PROJDATA record = definition.record;
    auto const projector = std::make_shared<CProjector>(&record);
    return {.name = {},
            .isOurs = true,
            .forward = [=](PROJPOINT* points, int count) { projector->Forward(points, count); },
            .inverse = [=](PROJPOINT* points, int count) { projector->Inverse(points, count); }};
}

Contender::Convert conversion(DatumType from, DatumType to) {
    DATUMXFORM request{};
    request.Source = from;
    request.Destination = to;
    auto const transform = std::make_shared<CDatumTransform>(&request);
    return [=](PROJPOINT* points, int count) { transform->Convert(reinterpret_cast<DATUMPOINT*>(points), count); };
}

Contender contenderOf(DatumType datum) {
    return {.name = {},
            .isOurs = true,
            .metres = 6371000 * std::numbers::pi / 180,
            .forward = conversion(datum, DatumTypeWorldGeodeticSystem1984),
            .inverse = conversion(DatumTypeWorldGeodeticSystem1984, datum)};
}

/// One contender for each level that this machine has.
template <class What> std::vector<Contender> atEachLevel(What const& what) {
    std::vector<Contender> contenders;
    auto const before = levels::levelInUse();
    for (auto const level : levels::allLevels)
        if (levels::isAvailable(level)) {
            levels::useLevel(level);
            contenders.push_back(contenderOf(what));
            contenders.back().name = levels::nameOf(level);
        }
    levels::useLevel(before);
    return contenders;
}

} // namespace

std::vector<Contender> zrprojContenders(Case const& definition) {
    return atEachLevel(definition);
}

std::vector<Contender> zrprojDatumContenders(DatumType datum) {
    return atEachLevel(datum);
}

} // namespace ZrProj::bench
