// What tests of the door share: handles that go with their scope, and systems by a few words.
#pragma once

#include "support/cases.h"
#include "support/handle.h"

#include <zrproj/datum.h>

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <string>

namespace ZrProj::test {

using Fit = std::unique_ptr<zrproj_fit, Destroyer<zrproj_fit_destroy>>;
using FitAnalysis = std::unique_ptr<zrproj_analysis, Destroyer<zrproj_analysis_destroy>>;
using Pieces = std::unique_ptr<zrproj_pieces, Destroyer<zrproj_pieces_destroy>>;
using Description = std::unique_ptr<zrproj_description, Destroyer<zrproj_description_destroy>>;
using SideFiles = std::unique_ptr<zrproj_side_files, Destroyer<zrproj_side_files_destroy>>;
using Tags = std::unique_ptr<zrproj_tags, Destroyer<zrproj_tags_destroy>>;

/// A handle made by `make(handle**)`; the test fails where it is not made.
template <class Handle, class Make> Handle made(Make const& make) {
    typename Handle::pointer handle = nullptr;
    zrproj_status const status = make(&handle);
    EXPECT_EQ(status, ZRPROJ_OK) << zrproj_message();
    return Handle(handle);
}

/// The parameters that a record has; its datum is not told.
inline zrproj_parameters parametersOf(PROJDATA const& record) {
    zrproj_parameters parameters{};
    parameters.size = sizeof parameters;
    for (int id = 1; id <= 22; ++id) {
        int size = 0;
        ProjParamInfo(id, nullptr, nullptr, nullptr, &size);
        double number = 0;
        std::int32_t whole = 0;
        if (size == sizeof number)
            ProjGetParam(&record, id, &number);
        else if (ProjGetParam(&record, id, &whole))
            number = whole;
        EXPECT_EQ(zrproj_parameters_set(&parameters, id, number), ZRPROJ_OK) << zrproj_message();
    }
    return parameters;
}

inline System systemOf(zrproj_parameters const& parameters) {
    return made<System>([&](zrproj_system** s) { return zrproj_system_create_from_parameters(&parameters, s); });
}

inline System geographicOf(System const& system) {
    return made<System>([&](zrproj_system** s) { return zrproj_system_geographic(system.get(), s); });
}

/// From degrees to the map coordinates of a system.
inline Transform mapOf(zrproj_parameters const& parameters, int threads = 0) {
    System const map = systemOf(parameters), geographic = geographicOf(map);
    zrproj_options const options{sizeof options, nullptr, threads, 0};
    return made<Transform>(
        [&](zrproj_transform** t) { return zrproj_transform_create(geographic.get(), map.get(), &options, t); });
}

} // namespace ZrProj::test
