// The library as the checks use it.
#pragma once

#include "support/handle.h"

#include <string>

namespace ZrProj::Conformity {

using test::System, test::Transform;

/// Throws a Fault with the library's message after a failure.
void demand(zrproj_status status);

System systemOf(std::string const& definition);
System systemOf(zrproj_parameters const& parameters);
System geographicOf(System const& system);
bool isGeographic(System const& system);

struct Figure {
    double radius = 0, flattening = 0;
};
Figure figureOf(System const& system);

struct Point {
    double x = 0, y = 0;
};

/// The way from one system to another.
class Way {
public:
    Way(System const& from, System const& to);

    /// Throws a Fault, with the reason, for a point that has no result.
    Point convert(Point point, bool backwards) const;

private:
    Transform transform_;
};

} // namespace ZrProj::Conformity
