// PROJ converts arrays in place, as zrproj does, in radians.
#include "contender.h"

#include <memory>
#include <numbers>
#include <string_view>

#include <proj.h>

namespace ZrProj::bench {
namespace {

void convertAll(PJ* projection, PJ_DIRECTION direction, PROJPOINT* points, int count) {
    auto const size = static_cast<std::size_t>(count);
    proj_trans_generic(projection, direction, &points->x, sizeof *points, size, &points->y, sizeof *points, size,
                       nullptr, 0, 0, nullptr, 0, 0);
}

Contender contenderOf(std::string name, std::string const& definition) {
    std::shared_ptr<PJ> const projection(proj_create(nullptr, definition.c_str()), proj_destroy);
    return {.name = std::move(name),
            .degree = std::numbers::pi / 180,
            .forward = [=](PROJPOINT* points, int count) { convertAll(projection.get(), PJ_FWD, points, count); },
            .inverse = [=](PROJPOINT* points, int count) { convertAll(projection.get(), PJ_INV, points, count); }};
}

} // namespace

std::vector<Contender> projContenders(Case const& definition) {
    std::string const& text = definition.proj;
    std::vector<Contender> contenders{contenderOf("PROJ", text)};
    if (text.starts_with("+proj=utm") || text.starts_with("+proj=tmerc"))
        contenders.push_back(contenderOf("PROJ+approx", text + " +approx"));
    return contenders;
}

Contender projDatumContender(std::string const& definition) {
    auto contender = contenderOf("PROJ", definition);
    contender.metres = 6371000;
    return contender;
}

} // namespace ZrProj::bench
