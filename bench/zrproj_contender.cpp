#include "contender.h"

#include "formulas/levels.h"

#include <memory>

namespace ZrProj::bench {
namespace {

struct NamedLevel {
    formulas::Level level;
    char const* name;
};
constexpr NamedLevel levels[] = {{formulas::Level::scalar, "scalar"},
                                 {formulas::Level::baseline, "baseline"},
                                 {formulas::Level::avx2, "avx2"},
                                 {formulas::Level::avx512, "avx512"}};

Contender contenderAt(NamedLevel const& at, Case const& definition) {
    auto const before = formulas::levelInUse();
    formulas::useLevel(at.level);
    PROJDATA record = definition.record();
    auto const projector = std::make_shared<CProjector>(&record);
    formulas::useLevel(before);
    return {.name = at.name,
            .isOurs = true,
            .forward = [=](PROJPOINT* points, int count) { projector->Forward(points, count); },
            .inverse = [=](PROJPOINT* points, int count) { projector->Inverse(points, count); }};
}

} // namespace

std::vector<Contender> zrprojContenders(Case const& definition) {
    std::vector<Contender> contenders;
    for (auto const& level : levels)
        if (formulas::isAvailable(level.level))
            contenders.push_back(contenderAt(level, definition));
    return contenders;
}

} // namespace ZrProj::bench
