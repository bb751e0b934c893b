#include "door.h"

#include "report.h"

namespace ZrProj::Conformity {
namespace {

/// The handle that `make(handle**)` makes.
template <class Handle, class Make> Handle made(Make const& make) {
    typename Handle::pointer handle = nullptr;
    demand(make(&handle));
    return Handle(handle);
}

} // namespace

void demand(zrproj_status status) {
    if (status != ZRPROJ_OK)
        throw Fault(zrproj_message());
}

System systemOf(std::string const& definition) {
    return made<System>([&](zrproj_system** system) { return zrproj_system_create(definition.c_str(), system); });
}

System systemOf(zrproj_parameters const& parameters) {
    return made<System>(
        [&](zrproj_system** system) { return zrproj_system_create_from_parameters(&parameters, system); });
}

System geographicOf(System const& system) {
    return made<System>([&](zrproj_system** base) { return zrproj_system_geographic(system.get(), base); });
}

bool isGeographic(System const& system) {
    double metres = 0;
    return zrproj_system_unit(system.get(), &metres) == ZRPROJ_UNKNOWN;
}

Figure figureOf(System const& system) {
    Figure figure;
    demand(zrproj_system_ellipsoid(system.get(), &figure.radius, &figure.flattening));
    return figure;
}

Way::Way(System const& from, System const& to)
    : transform_(made<Transform>([&](zrproj_transform** transform) {
          return zrproj_transform_create(from.get(), to.get(), nullptr, transform);
      })) {}

Point Way::convert(Point point, bool backwards) const {
    unsigned char reason = ZRPROJ_CONVERTED;
    demand(zrproj_transform_points(transform_.get(), backwards, &point.x, &point.y, sizeof point, 1, &reason));
    if (reason >= ZRPROJ_NOT_FINITE)
        throw Fault(zrproj_reason_name(static_cast<zrproj_reason>(reason)));
    return point;
}

} // namespace ZrProj::Conformity
