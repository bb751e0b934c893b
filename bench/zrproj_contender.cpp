#include "contender.h"

#include "levels/level.h"

#include <zrproj/c.h>

#include <memory>
#include <numbers>
#include <stdexcept>

namespace ZrProj::bench {
namespace {

constexpr double metresOfDegree = 6371000 * std::numbers::pi / 180;

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
            .metres = metresOfDegree,
            .forward = conversion(datum, DatumTypeWorldGeodeticSystem1984),
            .inverse = conversion(DatumTypeWorldGeodeticSystem1984, datum)};
}

void require(zrproj_status status) {
    if (status != ZRPROJ_OK)
        throw std::runtime_error(zrproj_message());
}

using System = std::unique_ptr<zrproj_system, decltype(&zrproj_system_destroy)>;

System systemOf(char const* definition) {
    zrproj_system* system = nullptr;
    require(zrproj_system_create(definition, &system));
    return {system, zrproj_system_destroy};
}

Contender contenderOf(SystemCase const& systems) {
    zrproj_transform* made = nullptr;
    System const to = systemOf(systems.to);
    double unit = 0;
    bool const endsInDegrees = zrproj_system_unit(to.get(), &unit) == ZRPROJ_UNKNOWN;
    require(zrproj_transform_create(systemOf(systems.from).get(), to.get(), nullptr, &made));
    std::shared_ptr<zrproj_transform const> const transform(made, [=](auto*) { zrproj_transform_destroy(made); });
    auto const convert = [=](bool backwards) {
        return [=](PROJPOINT* points, int count) {
            zrproj_transform_points(transform.get(), backwards, &points->x, &points->y, sizeof *points,
                                    static_cast<std::size_t>(count), nullptr);
        };
    };
    return {.name = {},
            .isOurs = true,
            .metres = endsInDegrees ? metresOfDegree : 1,
            .forward = convert(false),
            .inverse = convert(true)};
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

std::vector<Contender> zrprojSystemContenders(SystemCase const& systems) {
    return atEachLevel(systems);
}

} // namespace ZrProj::bench
