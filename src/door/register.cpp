// The register of coordinate systems.
#include "systems/register.h"

#include "door/answer.h"
#include "systems/search.h"

#include <algorithm>

using namespace ZrProj;
using namespace ZrProj::Door;

namespace {

Answer search(char const* text, double const* place, size_t* entries, size_t size, size_t* count) {
    if (size > 0 && !entries)
        return badArgument("null pointer to entries");
    if (place && !(std::fabs(place[0]) <= 360 && std::fabs(place[1]) <= 90))
        return badArgument("no place");
    auto const where = place ? std::optional(systems::Place{place[0], place[1]}) : std::nullopt;
    auto const found = systems::search(text ? text : "", where);
    std::copy_n(found.begin(), std::min(size, found.size()), entries);
    give(count, found.size());
    return {};
}

} // namespace

zrproj_status zrproj_register_entry(size_t n, int* code, char const** name, char const** kind) {
    return answer([&]() -> Answer {
        if (!(n < systems::entryCount()))
            return pastTheLast(n, systems::entryCount());
        auto const entry = systems::entry(n);
        give(code, entry.code);
        give(name, entry.name);
        give(kind, entry.projected ? "projected" : "geographic");
        return {};
    });
}

zrproj_status zrproj_register_search(char const* text, double const* place, size_t* entries, size_t size,
                                     size_t* count) {
    return answer([&] { return search(text, place, entries, size, count); });
}

char const* zrproj_register_version() {
    return systems::registerVersion().data();
}

char const* zrproj_register_terms() {
    return systems::registerTerms().data();
}
