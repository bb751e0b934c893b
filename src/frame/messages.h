// The error texts, by number: one row a text. The texts are exact, "rnage" included.
#pragma once

#include <array>

namespace ZrProj {

struct Message {
    unsigned number;
    char const* text;
};

// clang-format off
inline constexpr std::array messages{
    Message{20200, "Internal inconsistency detected"},
    Message{20201, "Out of global memory"},
    Message{20202, "Failed writing to file"},
    Message{20203, "Failed reading from file"},
    Message{20204, "Failed opening file"},
    Message{20205, "Software was passed a bad parameter"},
    Message{20230, "Invalid projection type parameter specified"},
    Message{20231, "Scale parameter must be greater than zero"},
    Message{20232, "Central scale factor parameter (K0) must be greater than zero"},
    Message{20233, "Invalid value specified for false easting parameter"},
    Message{20234, "Invalid value specified for false northing parameter"},
    Message{20235, "Central longitude (Lon0) parameter was outside the range of -360 to +360 degrees"},
    Message{20236, "Longitude one (Lon1) parameter was outside the range of -360 to +360 degrees"},
    Message{20237, "Longitude two (Lon2) parameter was outside the range of -360 to +360 degrees"},
    Message{20238, "Longitude three (Lon3) parameter was outside the range of -360 to +360 degrees"},
    Message{20239, "Central latitude (Lat0) parameter was outside the range of -90 to +90"},
    Message{20240, "Standard parallel one (Lat1) parameter was outside the range of -90 to +90"},
    Message{20241, "Standard parallel two (Lat2) parameter was outside the range of -90 to +90"},
    Message{20242, "Standard parallel three (Lat3) parameter was outside the range of -90 to +90"},
    Message{20243, "Azimuth (Alpha) parameter was outside the range of -360 to +360 degrees"},
    Message{20244, "Standard parallel (Lat1) parameter for Bonne projection cannot be zero"},
    Message{20245, "Sum or difference of standard parallel parameters (Lat1+Lat2) cannot be zero for Albers Equal Area projection"},
    Message{20246, "Azimuth (Alpha) parameter cannot be zero for Hotine Oblique Mercator projection"},
    Message{20247, "Standard parallels (Lat1, Lat2) cannot be similar for Lambert Conformal Conic projection"},
    Message{20248, "Invalid ellipsoid parameter specified for projection"},
    Message{20249, "Ellipsoid radius parameter must be greater than zero"},
    Message{20250, "Ellipsoid flattening parameter cannot be less than zero or greater than or equal to one"},
    Message{20251, "Central latitude (Lat0) parameter cannot be +/-90 degrees for Mercator projection"},
    Message{20252, "State zone parameter not recognized"},
    Message{20256, "Sum or difference of standard parallel parameters (Lat1+Lat2) cannot be zero for Equidistant Conic projection"},
    Message{20260, "Invalid source datum specified"},
    Message{20261, "Invalid destination datum specified"},
    Message{20262, "Invalid datum transformation method specified"},
    Message{20263, "Invalid ellipsoid specified for datum transformation"},
    Message{20264, "Prime meridian shift must be between -180 and +180 degrees"},
    Message{20265, "Invalid X axis shift for datum transformation"},
    Message{20266, "Invalid Y axis shift for datum transformation"},
    Message{20267, "Invalid Z axis shift for datum transformation"},
    Message{20268, "X axis rotation was outside the range of -3600 to +3600 arcseconds"},
    Message{20269, "Y axis rotation was outside the rnage of -3600 to +3600 arcseconds"},
    Message{20270, "Z axis rotation was outside the rnage of -3600 to +3600 arcseconds"},
    Message{20271, "K-scale parameter for datum transformation must be greater than zero"},
};
// clang-format on
static_assert(messages.size() == 42);

} // namespace ZrProj
