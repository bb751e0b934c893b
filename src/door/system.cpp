#include "door/system.h"

#include "proj/projection_table.h"

using namespace ZrProj;
using namespace ZrProj::Door;

namespace {

char const* nameOf(int type) {
    return projectionTable[static_cast<std::size_t>(type)].name;
}

std::string noMapText(zrproj_parameters const& parameters) {
    bool const lacksFlag =
        parameters.type == ProjTypeHotineObliqueMercator && parameters.alpha != 0 && !parameters.use_alpha;
    return std::string("with these parameters ") + nameOf(parameters.type) + " has no map" +
           (lacksFlag ? "; alpha counts only with use_alpha" : "");
}

Answer make(zrproj_system& system, zrproj_parameters const& parameters) {
    system.parameters = parameters;
    if (Answer completed = complete(system.parameters); !completed.isGood())
        return completed;
    if (parameters.type == ProjTypeUnprojectedLatLong)
        return {};
    system.projection = Projection::make(system.parameters);
    return system.projection ? Answer{} : unsupported(noMapText(parameters));
}

} // namespace

zrproj_status zrproj_system_create_from_parameters(zrproj_parameters const* parameters, zrproj_system** system) {
    return answerWith(system, [&](zrproj_system& made) {
        return hasKnownSize(parameters) ? make(made, *parameters) : badArgument("no parameters of a known size");
    });
}

void zrproj_system_destroy(zrproj_system* system) {
    std::unique_ptr<zrproj_system>{system}.reset();
}

zrproj_status zrproj_system_parameters(zrproj_system const* system, zrproj_parameters* parameters) {
    return answer([&]() -> Answer {
        if (!system || !hasKnownSize(parameters))
            return badArgument("no system, or no parameters of a known size");
        *parameters = system->parameters;
        return {};
    });
}

zrproj_status zrproj_system_geographic(zrproj_system const* system, zrproj_system** geographic) {
    return answerWith(geographic, [&](zrproj_system& made) -> Answer {
        if (!system)
            return badArgument("null pointer to a system");
        auto const& given = system->parameters;
        made.parameters.size = sizeof made.parameters;
        made.parameters.ellipsoid = given.ellipsoid;
        made.parameters.radius = given.radius;
        made.parameters.flattening = given.flattening;
        made.parameters.datum = given.datum;
        made.parameters.shift = given.shift;
        made.parameters.scale = made.parameters.k0 = 1;
        return {};
    });
}
