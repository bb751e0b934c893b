// Handles of the C interface that go with their scope.
#pragma once

#include <zrproj/c.h>

#include <memory>

namespace ZrProj::test {

template <auto destroy> struct Destroyer {
    template <class T> void operator()(T* handle) const { destroy(handle); }
};
using System = std::unique_ptr<zrproj_system, Destroyer<zrproj_system_destroy>>;
using Transform = std::unique_ptr<zrproj_transform, Destroyer<zrproj_transform_destroy>>;

} // namespace ZrProj::test
