// What a coordinate system of the door is.
#pragma once

#include "door/projection.h"

struct zrproj_system {
    zrproj_parameters parameters{};                             // complete
    std::shared_ptr<ZrProj::Door::Projection const> projection; // null: geographic
};
